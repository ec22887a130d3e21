#pragma once

#include <list>
#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// What a pilot goes through, line by line.
struct CheckList {
    std::string name;
    std::list<std::string> lines; ///< A "|" within a line splits it in two when it is read back.
};

/// The speeds and the checklists of an aircraft. Speeds are whole knots of indicated air speed; -1 means that the
/// aircraft has no such speed, and whoever uses it leaves it out.
class Aircraft {
public:
    static constexpr int none = -1;
    static constexpr int largestSpeed = 999;
    static constexpr int maximumCheckLists = 1000;

    std::vector<CheckList> checklists;
    std::string name = "new aircraft";
    int Vso = 55; ///< Stall speed with flaps and gear out.
    int Vs = 58;  ///< Stall speed without flaps.
    int Vfe = 105;
    int Vno = 145;
    int Vne = 200;
    int Vsse = none; ///< Safe single-engine speed.
    int Vbe = none;  ///< Speed of the smallest sink rate.
    int Vbg = none;  ///< Speed of the best glide.
    double inverseGlideRatio = -1.0;

    /// Takes any document: a value that is missing, negative or no number is none. Checklists that are counted, but not
    /// there, are passed over.
    void readFromIni(IniFile& ini, const std::string& section);
    /// In place of what the section held.
    void writeToIni(IniFile& ini, const std::string& section) const;

    int getCheckListCount() const { return static_cast<int>(checklists.size()); }
    /// Null for an index out of range.
    CheckList* getCheckList(int index);
    /// Appends an empty one and gives its index.
    int createCheckList();
    void removeCheckList(int index);

    /// Why the speeds can't be those of an aircraft, in words for the pilot; empty when they can.
    std::string findTrouble() const;
};

} // namespace skyvane
