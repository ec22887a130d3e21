#pragma once

#include <string>
#include <vector>

namespace skyvane {

class IniFile;

/// What the factories of sensors and forwarders ask the user. Each call returns with the answer; the frame goes on
/// meanwhile. Main thread only.
class ISensorDialogs {
public:
    virtual ~ISensorDialogs() = default;
    /// Edits the unnamed section of a document by a schema (gui/layout/EditorSchema.h tells its form). True for "Ok".
    /// The help file is a page of the manual.
    virtual bool edit(const std::string& title, const std::wstring& schema, const char* helpFile,
                      IniFile& document) = 0;
    /// Asks for a text; the one that is handed in is the proposal. False when the user cancelled.
    virtual bool askText(const std::string& question, std::string& text) = 0;
    virtual bool confirm(const std::string& question) = 0;
    /// Shows a text until the user has read it.
    virtual void tell(const std::string& text) = 0;
    /// The number of the label that the user chose; -1 when there was no answer.
    virtual int choose(const std::string& question, const std::vector<std::string>& labels) = 0;
    /// Lets the user choose a Bluetooth receiver, tries it, and keeps it in data/extSensorConfig.ini. False when he
    /// gave up.
    virtual bool chooseBluetoothDevice() = 0;
    /// The sensor setup screen; false, with the document as it was, when the user gave up.
    virtual bool selectSensors(IniFile& document) = 0;
    /// Offers to set up a network when there is none.
    virtual void offerNetwork() = 0;
};

/// Edits a section of a document. The section is as it was unless the user accepts.
bool editSection(ISensorDialogs& dialogs, IniFile& document, const std::string& section, const std::string& title,
                 const std::wstring& schema, const char* helpFile);

/// A text as it stands in a schema, where ",", ";" and "\" need an escape.
std::wstring escapeForSchema(const std::wstring& text);
/// Alternatives of a row of the type ONE_OF.
std::wstring schemaAlternatives(const std::vector<std::string>& alternatives);

} // namespace skyvane
