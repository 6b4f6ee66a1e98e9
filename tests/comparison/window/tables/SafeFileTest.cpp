#include "SafeFile.h"
#include "SampleTables.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <fstream>
#include <functional>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Files that cannot grow beyond some bytes, as on a full disk, while it exists.
class SmallFiles {
public:
    explicit SmallFiles(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{.rlim_cur = bytes, .rlim_max = m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    Q_DISABLE_COPY_MOVE(SmallFiles)
    ~SmallFiles() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

/// The rights of an ordinary user, while it exists; root may write everywhere.
class OrdinaryUser {
public:
    OrdinaryUser() : m_before(geteuid()) {
        constexpr uid_t nobody = 65534;
        m_is = m_before != 0 || setresuid(nobody, nobody, m_before) == 0;
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)
    ~OrdinaryUser() { m_is = setresuid(m_before, m_before, m_before) == 0; }
    bool Is() const { return m_is; }

private:
    uid_t m_before;
    bool m_is = false;
};

enum class Outcome { Right, Wrong, CannotMount };

bool WriteText(const char* path, const std::string& text) {
    std::ofstream file(path);
    file << text << std::flush;
    return file.good();
}

/// Runs a check in a child process, in which a small disk is mounted at this folder.
Outcome OnSmallDisk(const QString& folder, const std::function<bool()>& check) {
    const std::string user = "0 " + std::to_string(getuid()) + " 1";
    const std::string group = "0 " + std::to_string(getgid()) + " 1";
    const std::string at = folder.toStdString();
    const pid_t child = fork();
    if (child == 0) {
        const bool mounted = unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 &&
                             WriteText("/proc/self/setgroups", "deny") &&
                             WriteText("/proc/self/uid_map", user) &&
                             WriteText("/proc/self/gid_map", group) &&
                             mount("tmpfs", at.c_str(), "tmpfs", 0, "size=64k") == 0;
        const Outcome outcome =
            mounted ? (check() ? Outcome::Right : Outcome::Wrong) : Outcome::CannotMount;
        _exit(static_cast<int>(outcome));
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? static_cast<Outcome>(WEXITSTATUS(status)) : Outcome::Wrong;
}

class SafeFile : public testing::Test {
protected:
    SafeFile() { Speak(English); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    static QByteArray ContentOf(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    QStringList Names() const {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
    QByteArray m_content = QByteArray(100'000, 'x');
};

TEST_F(SafeFile, IsWrittenAndReplaced) {
    const QString path = Path(u"Our \"%1\" ñ.csv"_s);
    EXPECT_EQ(QString(), WriteFile(path, m_content));
    EXPECT_EQ(m_content, ContentOf(path));
    EXPECT_EQ(QString(), WriteFile(path, "short"));
    EXPECT_EQ("short", ContentOf(path));
    EXPECT_EQ(QString(), WriteFile(path, {}));
    EXPECT_EQ("", ContentOf(path));
    EXPECT_EQ(1, Names().size());
}

TEST_F(SafeFile, ReplacesTheFileOfALink) {
    ASSERT_EQ(QString(), WriteFile(Path(u"a"_s), "old"));
    ASSERT_TRUE(QFile::link(Path(u"a"_s), Path(u"link"_s)));
    EXPECT_EQ(QString(), WriteFile(Path(u"link"_s), "new"));
    EXPECT_EQ("new", ContentOf(Path(u"a"_s)));
    EXPECT_TRUE(QFileInfo(Path(u"link"_s)).isSymLink());
}

TEST_F(SafeFile, LeavesNothingOfAFileThatDoesNotFit) {
    ASSERT_EQ(QString(), WriteFile(Path(u"kept"_s), "old"));
    {
        const SmallFiles small(1000);
        for (const QString& name : {u"new"_s, u"kept"_s}) {
            const QString reason = WriteFile(Path(name), m_content);
            EXPECT_EQ(u"“%1” was not saved: File too large."_s.arg(Path(name)), reason);
        }
    }
    EXPECT_EQ("old", ContentOf(Path(u"kept"_s)));
    EXPECT_EQ(QStringList{u"kept"_s}, Names());
}

TEST_F(SafeFile, SaysThatTheDiskIsFull) {
    const QString path = Path(u"new"_s);
    const Outcome outcome = OnSmallDisk(m_folder.path(), [&] {
        return WriteFile(path, m_content) ==
                   u"“"_s + path + u"” was not saved, because the disk is full."_s &&
               Names().isEmpty() && WriteFile(path, "short").isEmpty() &&
               !WriteFile(path, m_content).isEmpty() && ContentOf(path) == "short";
    });
    if (outcome == Outcome::CannotMount) {
        GTEST_SKIP() << "this user cannot mount a disk";
    }
    EXPECT_EQ(Outcome::Right, outcome);
}

TEST_F(SafeFile, SaysThatTheFolderIsMissing) {
    const QString path = Path(u"missing/%1.csv"_s);
    EXPECT_EQ(u"“"_s + path + u"” was not saved, because its folder does not exist."_s,
              WriteFile(path, m_content));
    Speak(Spanish);
    EXPECT_EQ(u"No se guardó «"_s + path + u"», porque su carpeta no existe."_s,
              WriteFile(path, m_content));
    EXPECT_FALSE(WriteFile({}, m_content).isEmpty());
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(SafeFile, SaysThatTheUserMayNotWriteThere) {
    ASSERT_EQ(QString(), WriteFile(Path(u"file"_s), "old"));
    ASSERT_EQ(0, mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0600));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"folder"_s));
    ASSERT_EQ(0, chmod(QFile::encodeName(m_folder.path()).constData(), 0555));
    const OrdinaryUser user;
    if (!user.Is()) {
        GTEST_SKIP() << "this user cannot become another one";
    }
    for (const QString& name : {u"new"_s, u"file"_s, u"pipe"_s, u"folder"_s}) {
        EXPECT_EQ(
            u"“"_s + Path(name) +
                u"” was not saved, because you may not write there. Please choose another folder or name."_s,
            WriteFile(Path(name), m_content));
    }
    EXPECT_EQ("old", ContentOf(Path(u"file"_s)));
    EXPECT_EQ(3, Names().size());
}

TEST_F(SafeFile, ReplacesNoPipeAndNoFolder) {
    ASSERT_EQ(0, mkfifo(QFile::encodeName(Path(u"pipe"_s)).constData(), 0600));
    EXPECT_FALSE(WriteFile(Path(u"pipe"_s), m_content).isEmpty());
    EXPECT_FALSE(WriteFile(m_folder.path(), m_content).isEmpty());
    EXPECT_EQ(QStringList{u"pipe"_s}, Names());
    EXPECT_FALSE(QFileInfo(Path(u"pipe"_s)).isFile());
}

TEST_F(SafeFile, NamesTheSystemsReason) {
    const QString path = Path(QString(300, u'x'));
    EXPECT_EQ(u"“"_s + path + u"” was not saved: File name too long."_s,
              WriteFile(path, m_content));
}

} // namespace
