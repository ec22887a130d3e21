#include "gui/saves/SettingsLibrary.h"

#include "core/files/Paths.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "sensors/TemporaryFolder.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace skyvane {
namespace {

using Outcome = SettingsLibrary::Outcome;
using Conflict = SettingsLibrary::Conflict;

class SettingsLibraryTest : public testing::Test {
protected:
    SettingsLibraryTest() : path(folder.path("fpl.ini")), library(&document, path) {}

    Outcome put(const std::string& in, const std::string& name, const std::string& value) {
        return library.save(in, name, [&value](IniFile& ini, const std::string& section) {
            ini.set(section, "cnt", value);
            return true;
        });
    }
    std::string names(const std::string& in) const {
        std::string all;
        for (const SettingsLibrary::Item& item : library.list(in))
            all += item.name + (item.isFolder ? "/ " : " ");
        return all;
    }
    /// What a later run of the program would read.
    std::string onDisk() const { return IniFile(path).toString(); }

    TemporaryFolder folder;
    std::string path;
    IniFile document;
    SettingsLibrary library;
};

} // namespace

TEST_F(SettingsLibraryTest, EntriesStandInFoldersAndOnTheDisk) {
    EXPECT_EQ(Outcome::Done, library.makeFolder("", "Alps"));
    EXPECT_EQ(Outcome::Done, put("Alps/", "Home to Zell", "3"));
    EXPECT_EQ(Outcome::Done, put("", "Round trip", "1"));
    EXPECT_EQ("Alps/ Round trip ", names(""));
    EXPECT_EQ("Home to Zell ", names("Alps/"));
    EXPECT_TRUE(library.isEntry("Alps/Home to Zell"));
    EXPECT_FALSE(library.isEntry("Alps"));
    EXPECT_EQ(Outcome::Exists, library.makeFolder("", "Alps"));
    EXPECT_EQ(Outcome::Exists, put("", "Alps", "1"));
    EXPECT_EQ(Outcome::Exists, library.rename("", {"Round trip", false}, "Alps"));
    EXPECT_EQ(Outcome::Done, library.rename("", {"Alps", true}, "Mountains"));
    EXPECT_EQ("Home to Zell ", names("Mountains/"));
    EXPECT_EQ(Outcome::Done, library.remove("Mountains/", {"Home to Zell", false}));
    EXPECT_EQ("Mountains/ Round trip ", names(""));
    EXPECT_EQ(document.toString(), onDisk());
    EXPECT_EQ(Outcome::Done, put("Mountains/", "x", "1"));
    EXPECT_EQ(2, library.count(""));
    EXPECT_EQ(Outcome::Done, library.removeAll("Mountains/"));
    EXPECT_EQ("Mountains/ Round trip ", names(""));
    EXPECT_EQ(Outcome::Done, library.removeAll(""));
    EXPECT_EQ("", names(""));
    EXPECT_EQ("", onDisk());
}

TEST_F(SettingsLibraryTest, NamesNeverLeaveTheirFolder) {
    for (const char* bad : {"", ".", "..", "../x", "a/b", "a\\b", " a", "a ", "a\nb", "\x7f"}) {
        EXPECT_FALSE(isGoodEntryName(bad)) << bad;
        EXPECT_EQ(Outcome::BadName, put("", bad, "1")) << bad;
        EXPECT_EQ(Outcome::BadName, library.makeFolder("", bad)) << bad;
        EXPECT_EQ(Outcome::BadName, library.rename("", {"x", false}, bad)) << bad;
    }
    EXPECT_EQ(Outcome::BadName, put("", std::string(101, 'x'), "1"));
    EXPECT_EQ(Outcome::BadName, put("../", "x", "1"));
    EXPECT_EQ("", document.toString());
    EXPECT_FALSE(fileExist(path));
}

TEST_F(SettingsLibraryTest, StrangeSectionsAreLeftAlone) {
    document.setFromString("version = 7\n[a//b]\nx = 1\n[../etc]\nx = 2\n[/]\nx = 3\n[good]\nx = 4\n[both]\nx = 5\n"
                           "[both/in]\nx = 6\n");
    EXPECT_EQ("both/ both good ", names(""));
    EXPECT_EQ(Outcome::Done, library.remove("", {"both", false}));
    EXPECT_EQ("both/ good ", names(""));
    EXPECT_EQ(Outcome::Done, library.removeAll(""));
    EXPECT_EQ("7", document.get("", "version"));
    EXPECT_EQ("1", document.get("a//b", "x"));
    EXPECT_EQ("2", document.get("../etc", "x"));
}

TEST_F(SettingsLibraryTest, WhatCantBeWrittenChangesNothing) {
    ASSERT_EQ(Outcome::Done, put("", "good", "1"));
    const std::string before = document.toString();
    // The place of the new file is taken by a folder: as with a full disk, nothing can be written beside.
    std::filesystem::create_directory(path + ".new");
    EXPECT_EQ(Outcome::NotWritten, put("", "other", "2"));
    EXPECT_EQ(Outcome::NotWritten, put("", "good", "2"));
    EXPECT_EQ(Outcome::NotWritten, library.remove("", {"good", false}));
    EXPECT_EQ(EISDIR, library.getWriteError());
    EXPECT_EQ(before, document.toString());
    EXPECT_EQ(before, onDisk());
    EXPECT_EQ(Outcome::Missing, library.save("", "good", [](IniFile&, const std::string&) { return false; }));
    EXPECT_EQ(before, document.toString());
}

TEST_F(SettingsLibraryTest, ImportAndExportAskAboutWhatDiffers) {
    const std::string other = folder.path("exchange.ini");
    ASSERT_TRUE(writeStringToFile(other, "[same]\ncnt = 1\n[theirs]\ncnt = 5\n[both]\ncnt = 9\n[../x]\ncnt = 1\n"));
    ASSERT_EQ(Outcome::Done, put("", "same", "1"));
    ASSERT_EQ(Outcome::Done, put("", "both", "2"));
    ASSERT_EQ(Outcome::Done, put("", "ours", "3"));
    EXPECT_EQ(1, library.countConflicts(other));
    EXPECT_EQ(Outcome::Done, library.importFrom(other, Conflict::Keep));
    EXPECT_EQ("both ours same theirs ", names(""));
    EXPECT_EQ("2", document.get("both", "cnt"));
    EXPECT_EQ(Outcome::Done, library.importFrom(other, Conflict::Replace));
    EXPECT_EQ("9", document.get("both", "cnt"));
    EXPECT_FALSE(document.isSectionAvailable("../x"));
    EXPECT_EQ(Outcome::Done, library.exportTo(other, Conflict::Keep));
    IniFile written(other);
    EXPECT_EQ("3", written.get("ours", "cnt"));
    EXPECT_EQ("1", written.get("../x", "cnt"));
    EXPECT_EQ(Outcome::Missing, library.importFrom(folder.path("none.ini"), Conflict::Keep));
    EXPECT_EQ(Outcome::Missing, library.importFrom(folder.path(), Conflict::Keep));
    ASSERT_TRUE(writeStringToFile(other, std::string("[a]\nx = 1\n\0more", 16)));
    EXPECT_EQ(Outcome::NotWritten, library.exportTo(other, Conflict::Replace));
}

TEST_F(SettingsLibraryTest, AFullDiskLeavesTheFormerFile) {
    ASSERT_EQ(0, saveFileSafely(path, "first"));
    rlimit former{};
    getrlimit(RLIMIT_FSIZE, &former);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight{1000, former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    const int error = saveFileSafely(path, std::string(5000, 'x'));
    setrlimit(RLIMIT_FSIZE, &former);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ("There is no room left on the disk.", whyNotWritten(error));
    EXPECT_EQ("first", readWholeFile(path, 100).value_or(""));
    EXPECT_FALSE(fileExist(path + ".new"));
}

TEST_F(SettingsLibraryTest, LinksAndLimitsOfFiles) {
    ASSERT_EQ(0, saveFileSafely(path, "first"));
    const std::string link = folder.path("link.ini");
    std::filesystem::create_symlink(path, link);
    ASSERT_EQ(0, saveFileSafely(link, "second"));
    EXPECT_EQ("second", readWholeFile(path, 100).value_or(""));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_FALSE(readWholeFile(path, 5));
    EXPECT_TRUE(readWholeFile(path, 6));
}

} // namespace skyvane
