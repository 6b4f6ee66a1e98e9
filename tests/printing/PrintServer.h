#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A print server in a temporary folder, whose queue "Lab" prints into files. It is the default
/// one. This program and its children print there, and nowhere else.
class PrintServer {
public:
    /// Whether what it takes is installed.
    static bool IsInstalled();

    PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;
    PrintServer(PrintServer&&) = delete;
    PrintServer& operator=(PrintServer&&) = delete;
    ~PrintServer();

    /// Runs one of the server's own commands; gives what it says. Throws where it fails.
    static QString Run(const QString& command, const QStringList& arguments);
    /// Ends the server.
    void EndServer() const;
    /// The documents that have come out of the printer, in order.
    QStringList Printed() const;
    /// Every job that the server has ever taken, done or not, such as "Lab-1".
    static QStringList Jobs();
    /// The documents in the server's own folder.
    QStringList Spooled() const;

private:
    void Lab(const QString& command) const;

    QTemporaryDir m_folder;
};

/// Whether a document has been written to its end.
bool IsWhole(const QString& document);

/// The texts of a page of a document, as a reader selects them; pages count from 1.
QString PageText(const QString& document, int page);
/// How many pages a document has, how many pictures are in it, and its title.
int PageCount(const QString& document);
int PictureCount(const QString& document);
QString Title(const QString& document);
