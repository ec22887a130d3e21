#include "core/files/SavingTrouble.h"

#include "sensors/TemporaryFolder.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(SavingTrouble, saysWhatToDoAboutAFullDiskAndAFolderThatIsntOnesOwn) {
    EXPECT_NE(savingTrouble("/home/", {0, 1000}).find("full"), std::string::npos);
    EXPECT_NE(savingTrouble("/home/", {EROFS, 1u << 30}).find("writable"), std::string::npos);
    EXPECT_NE(savingTrouble("/home/", {EACCES, 0}).find("/home/"), std::string::npos);
    EXPECT_EQ(savingTrouble("/home/", {0, 1u << 30}), "");
    EXPECT_EQ(savingTrouble("/home/", {ENOENT, 0}), "") << "who makes the folder tells";
}

TEST(SavingTrouble, asksTheFileSystem) {
    const TemporaryFolder folder;
    EXPECT_EQ(lookAtFolder(folder.path()).error, 0);
    EXPECT_GT(lookAtFolder(folder.path()).freeBytes, 0u);
    EXPECT_EQ(lookAtFolder(folder.path("none")).error, ENOENT);
}

} // namespace
} // namespace skyvane
