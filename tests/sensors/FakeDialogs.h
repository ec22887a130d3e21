#pragma once

#include "core/ini/IniFile.h"
#include "sensors/ISensorDialogs.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace skyvane {

/// Answers as a test has laid down.
class FakeDialogs : public ISensorDialogs {
public:
    bool edit(const std::string&, const std::wstring& schema, const char*, IniFile& document) override {
        lastSchema = schema;
        if (onEdit)
            onEdit(document);
        return accept;
    }
    bool askText(const std::string& question, std::string& text) override {
        lastQuestion = question;
        if (names.empty())
            return false;
        text = names.front();
        names.pop_front();
        return true;
    }
    bool confirm(const std::string& question) override {
        confirmed.push_back(question);
        return accept;
    }
    void tell(const std::string& text) override { told.push_back(text); }
    int choose(const std::string& question, const std::vector<std::string>& labels) override {
        lastQuestion = question;
        lastLabels = labels;
        return choice;
    }
    bool chooseBluetoothDevice() override { return accept; }
    bool selectSensors(IniFile& document) override {
        if (onEdit)
            onEdit(document);
        return accept;
    }
    void offerNetwork() override { ++networkOffers; }

    std::function<void(IniFile&)> onEdit;
    bool accept = true;
    int choice = -1;
    std::vector<std::string> lastLabels;
    std::deque<std::string> names;
    std::wstring lastSchema;
    std::string lastQuestion;
    std::vector<std::string> confirmed;
    std::vector<std::string> told;
    int networkOffers = 0;
};

} // namespace skyvane
