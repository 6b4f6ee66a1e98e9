// Help files with arbitrary contents. A file that opens has pages and answers every query. One that
// does not open is a failure with a message.

#include "CompiledHelp.h"
#include "Failure.h"
#include "Fuzzing.h"
#include "QuendNames.h"
#include "QuietQt.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

std::string Whole(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

class HelpFuzz : public testing::Test {
protected:
    void Try(const std::string& bytes) {
        const QuietQt quiet;
        const QString path = m_folder.filePath(QStringLiteral("loan000.hlp"));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        file.close();
        try {
            Use(path);
        } catch (const Failure& failure) {
            EXPECT_NE(failure.Description(), "");
        }
    }

private:
    static void Use(const QString& path) {
        const CompiledHelp content(path);
        EXPECT_FALSE(content.Data(content.FirstPage()).isEmpty());
        for (const int topic : {0, 1003, 1052, 99'999}) {
            content.TopicText(topic);
            const QUrl page = content.PageOfTopic(topic);
            EXPECT_TRUE(page.isEmpty() || page.scheme() == QLatin1String("qthelp"));
        }
        content.Has(content.PageOfKeyword(QStringLiteral("points")));
        content.Has(content.Page(QStringLiteral("../../../etc/passwd")));
    }

    QTemporaryDir m_folder;
};

TEST_F(HelpFuzz, ADamagedHelpFileOpensWithItsPagesOrReportsWhy) {
    const std::string sound = Whole(QStringLiteral(QUEND_PROGRAM_DIR "/loan000.hlp"));
    const FuzzTarget target("help", [this](const std::string& input) { Try(input); });
    target.TryAtRandom([&](FuzzRandom& random) {
        std::string bytes = sound;
        // Damages the beginning of pages of the file, which describes what they contain.
        for (std::size_t count = 1 + random.Below(8); count > 0; --count) {
            const std::size_t page = random.Below(bytes.size()) / 1'024 * 1'024;
            bytes.replace(page, 64, Damaged(random, bytes.substr(page, 64)).substr(0, 64));
        }
        return random.OneIn(10) ? bytes.substr(0, random.Below(bytes.size())) : bytes;
    });
}

TEST_F(HelpFuzz, OtherFilesAreNoHelpFiles) {
    for (const QString& path :
         {QStringLiteral(QUEND_PROGRAM_DIR "/Loan"), QStringLiteral("/dev/null"),
          QStringLiteral("/dev/zero"), QStringLiteral("/"), QStringLiteral("/proc/self/mem"),
          QStringLiteral(QUEND_TEST_DATA "/store-corpus/whole.store"), QString(5'000, u'x'),
          QString()}) {
        SCOPED_TRACE(path.left(80).toStdString());
        const QuietQt quiet;
        alarm(20);
        EXPECT_THROW(CompiledHelp{path}, Failure);
    }
    alarm(0);
}

} // namespace
