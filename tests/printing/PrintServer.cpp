#include "PrintServer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include <stdexcept>

namespace {

constexpr int PatienceMs = 60'000;

QString PropertyOf(const QString& document, const QString& name) {
    const QString info = PrintServer::Run(QStringLiteral("pdfinfo"), {document});
    const QRegularExpression line(QStringLiteral("^%1:\\s*(.*)$").arg(name),
                                  QRegularExpression::MultilineOption);
    return line.match(info).captured(1);
}

} // namespace

bool PrintServer::IsInstalled() {
    return !QStandardPaths::findExecutable(
                QStringLiteral("cupsd"), {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin")})
                .isEmpty();
}

PrintServer::PrintServer() {
    const QString home = m_folder.filePath(QStringLiteral("home"));
    QDir().mkpath(home);
    qputenv("HOME", home.toLocal8Bit());
    qputenv("CUPS_SERVER", m_folder.filePath(QStringLiteral("run/cups.sock")).toLocal8Bit());
    qunsetenv("PRINTER");
    qunsetenv("LPDEST");
    Lab(QStringLiteral("start"));
}

PrintServer::~PrintServer() { Lab(QStringLiteral("stop")); }

void PrintServer::Lab(const QString& command) const {
    Run(QStringLiteral(QUEND_SOURCE_DIR "/scripts/printlab"), {command, m_folder.path()});
}

QString PrintServer::Run(const QString& command, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"),
                       environment.value(QStringLiteral("PATH")) + QStringLiteral(":/usr/sbin"));
    process.setProcessEnvironment(environment);
    process.start(command, arguments);
    if (!process.waitForFinished(PatienceMs) || process.exitCode() != 0) {
        throw std::runtime_error((command + u' ' + arguments.join(u' ') + QStringLiteral(": ") +
                                  QString::fromLocal8Bit(process.readAllStandardError()))
                                     .toStdString());
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

void PrintServer::EndServer() const {
    QFile file(m_folder.filePath(QStringLiteral("run/cupsd.pid")));
    if (file.open(QIODevice::ReadOnly)) {
        Run(QStringLiteral("kill"), {QString::fromLatin1(file.readAll().trimmed())});
    }
}

QStringList PrintServer::Printed() const {
    QDir folder(m_folder.filePath(QStringLiteral("jobs")));
    QStringList paths;
    for (const QString& name :
         folder.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name)) {
        paths << folder.filePath(name);
    }
    return paths;
}

QStringList PrintServer::Jobs() {
    QStringList jobs;
    const QString all = Run(QStringLiteral("lpstat"),
                            {QStringLiteral("-W"), QStringLiteral("all"), QStringLiteral("-o")});
    for (const QString& line : all.split(u'\n', Qt::SkipEmptyParts)) {
        jobs << line.section(u' ', 0, 0);
    }
    return jobs;
}

QStringList PrintServer::Spooled() const {
    return QDir(m_folder.filePath(QStringLiteral("spool"))).entryList(QDir::Files);
}

bool IsWhole(const QString& document) {
    QFile file(document);
    return file.open(QIODevice::ReadOnly) && file.readAll().trimmed().endsWith("%%EOF");
}

QString PageText(const QString& document, int page) {
    const QString number = QString::number(page);
    return PrintServer::Run(QStringLiteral("pdftotext"),
                            {QStringLiteral("-f"), number, QStringLiteral("-l"), number,
                             QStringLiteral("-layout"), document, QStringLiteral("-")});
}

int PageCount(const QString& document) {
    return PropertyOf(document, QStringLiteral("Pages")).toInt();
}

int PictureCount(const QString& document) {
    constexpr int headings = 2;
    const QString list =
        PrintServer::Run(QStringLiteral("pdfimages"), {QStringLiteral("-list"), document});
    return static_cast<int>(list.count(u'\n')) - headings;
}

QString Title(const QString& document) { return PropertyOf(document, QStringLiteral("Title")); }
