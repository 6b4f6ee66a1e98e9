// The program's folder, copied to another place and started through a link like an installed one.

#include "Drive.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// The build folder still exists meanwhile, so a wrong search would find it.
class CopiedFolder : public testing::Test {
protected:
    /// Copies the build's files with these endings into a folder with a difficult name.
    void Copy(const std::vector<std::string>& endings) const {
        for (const auto& entry : fs::directory_iterator(QUEND_PROGRAM_DIR)) {
            const std::string name = entry.path().filename().string();
            for (const std::string& ending : endings) {
                if (name.ends_with(ending)) {
                    fs::copy_file(entry.path(), Folder() / name);
                }
            }
        }
    }
    fs::path Folder() const { return Place() / fs::path(u8"programs of José"); }
    fs::path Command() const { return Place() / "bin" / "quend-loan"; }

    void SetUp() override {
        ASSERT_TRUE(m_place.isValid());
        fs::create_directory(Folder());
        fs::create_directory(Command().parent_path());
        fs::create_symlink(fs::path("..") / Folder().filename() / "Loan", Command());
    }

private:
    fs::path Place() const { return m_place.path().toStdString(); }

    QTemporaryDir m_place;
};

const std::string HelpInBothLanguages = R"(
class
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(1)
key txtLoanAmount F1
helped
menu mnuTools mnuToolsLanguage mnuToolsLanguageOpt(2)
key txtLoanAmount F1
helped
components
quit
)";

TEST_F(CopiedFolder, FindsItsLanguagesAndItsHelpBesideItself) {
    Copy({"Loan", ".so", ".hlp"});
    const DriveResult result = Drive("en_US.UTF-8", HelpInBothLanguages, Command().string());
    EXPECT_EQ(result.readings, "class\tLoan\n" // as packaging/desktop.in has it
                               "help\tQuend Loan Help\n"
                               "help\tAyuda de Quend Loan\n"
                               "component\tLoan000.Resources.so\n"
                               "component\tLoan40a.Resources.so\n");
    EXPECT_EQ(result.complaints, "");
}

/// In Spain: neither the language nor the help is loaded from elsewhere.
TEST_F(CopiedFolder, LooksNowhereElse) {
    Copy({"Loan", ".Help.so"});
    const DriveResult result = Drive("es_ES.UTF-8", R"(
key txtLoanAmount F1
dialog
components
quit
)",
                                     Command().string());
    EXPECT_EQ(result.readings, "dialog\tCannot open documentation file " +
                                   (Folder() / "loan40a.hlp").string() + ".\n");
    EXPECT_EQ(result.complaints, "");
}

} // namespace
