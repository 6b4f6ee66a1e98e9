// A file is saved whole or not at all, whatever the disk and the folder allow.

#include "SaveFile.h"
#include "ChildProcess.h"
#include "QuendNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class SaveFileTest : public testing::Test {
protected:
    SaveFileTest() {
        QFile old(In(u"old"_s));
        old.open(QIODevice::WriteOnly);
        old.write("old");
        // The other user of some tests may come here, too.
        QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777));
        QFile::setPermissions(old.fileName(), QFile::Permissions(0x6666));
    }
    QString In(const QString& name) const { return m_folder.filePath(name); }
    QStringList Names() const {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    std::filesystem::path Folder() const { return m_folder.path().toStdString(); }
    /// Neither an old file nor a new one can be saved, and nothing is left behind.
    void ExpectRefused(SaveFault fault, const QByteArray& content) const {
        const QStringList before = Names();
        for (const QString& name : {u"old"_s, u"new"_s}) {
            const SaveOutcome outcome = SaveFile(In(name), content);
            EXPECT_EQ(outcome.fault, fault) << outcome.detail.toStdString();
            EXPECT_EQ(outcome.detail.isEmpty(), fault != SaveFault::Failed);
        }
        EXPECT_EQ(BytesOf(In(u"old"_s)), before.contains(u"old"_s) ? "old" : "");
        EXPECT_EQ(Names(), before);
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(SaveFileTest, SavesWhatItIsGiven) {
    for (const QByteArray& content :
         {QByteArray(), QByteArray("a\0b\r\n", 5), QByteArray(3'000'000, 'x')}) {
        for (const QString& name : {u"new"_s, u"old"_s, u"ñ %1 \".pdf"_s}) {
            EXPECT_EQ(SaveFile(In(name), content).fault, SaveFault::None);
            EXPECT_EQ(BytesOf(In(name)), content);
        }
    }
    EXPECT_EQ(Names().size(), 3);
}

TEST_F(SaveFileTest, KeepsPermissionsAndLinks) {
    QFile::setPermissions(In(u"old"_s), QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(QFile::link(u"old"_s, In(u"link"_s)));
    EXPECT_EQ(SaveFile(In(u"link"_s), "new").fault, SaveFault::None);
    EXPECT_EQ(BytesOf(In(u"old"_s)), "new");
    EXPECT_TRUE(QFileInfo(In(u"link"_s)).isSymLink());
    EXPECT_EQ(QFile::permissions(In(u"old"_s)) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
}

TEST_F(SaveFileTest, RefusesWhatIsNoFile) {
    ASSERT_EQ(mkfifo((Folder() / "pipe").c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, In(u"device"_s)));
    const struct {
        QString path;
        SaveFault fault;
    } table[]{
        {In(u"pipe"_s), SaveFault::NotAFile},
        {In(u"device"_s), SaveFault::NotAFile},
        {In(u""_s), SaveFault::NotAFile},
        {u"/dev/full"_s, SaveFault::NotAFile},
        {In(u"missing/new"_s), SaveFault::NoFolder},
        {In(u"old/new"_s), SaveFault::NoFolder},
        {QString(), SaveFault::NoFolder},
        {In(QString(300, u'x')), SaveFault::Failed},
    };
    const QStringList before = Names();
    for (const auto& row : table) {
        EXPECT_EQ(SaveFile(row.path, "new").fault, row.fault) << row.path.toStdString();
    }
    EXPECT_EQ(Names(), before);
    EXPECT_FALSE(QFileInfo(u"/dev/full"_s).isFile());
}

TEST_F(SaveFileTest, ALimitReachedLeavesNoHalfFile) {
    for (const rlim_t most : {rlim_t{0}, rlim_t{100}, rlim_t{20'000}}) {
        EXPECT_TRUE(HoldsInChild([&] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{most, most};
            ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
            ExpectRefused(SaveFault::Failed, QByteArray(static_cast<qsizetype>(most) + 1, 'x'));
            ExpectRefused(SaveFault::Failed, QByteArray(1'000'000, 'x'));
        })) << most;
    }
}

TEST_F(SaveFileTest, AFullDiskLeavesNoHalfFile) {
    if (!HoldsInChild([&] { _exit(MountSmallDisk(Folder()) ? 0 : 1); })) {
        GTEST_SKIP() << "this machine lets this user mount no small disk";
    }
    EXPECT_TRUE(HoldsInChild([&] {
        ASSERT_TRUE(MountSmallDisk(Folder()));
        ASSERT_EQ(SaveFile(In(u"old"_s), "old").fault, SaveFault::None);
        ExpectRefused(SaveFault::DiskFull, QByteArray(2'000'000, 'x'));
    }));
}

TEST_F(SaveFileTest, AFolderThatMustNotBeWrittenIsNamed) {
    QFile::setPermissions(QString::fromStdString(Folder().string()), QFile::Permissions(0x5555));
    EXPECT_TRUE(HoldsForAnotherUser([&] { ExpectRefused(SaveFault::NotAllowed, "new"); }));
    QFile::setPermissions(QString::fromStdString(Folder().string()), QFile::Permissions(0x7777));
    QFile::setPermissions(In(u"old"_s), QFile::Permissions(0x4444));
    EXPECT_TRUE(HoldsForAnotherUser([&] {
        EXPECT_EQ(SaveFile(In(u"old"_s), "new").fault, SaveFault::NotAllowed);
        EXPECT_EQ(BytesOf(In(u"old"_s)), "old");
    }));
}

} // namespace
