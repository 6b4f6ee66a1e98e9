#pragma once

#include <QStringList>
#include <QTemporaryDir>

/// A print server in a temporary folder; its default queue "Lab" prints into files. This process
/// and its children print only there.
class PrintServer {
public:
    /// Whether the required programs are installed.
    static bool IsInstalled();

    PrintServer();
    Q_DISABLE_COPY_MOVE(PrintServer)
    ~PrintServer();

    /// Runs one of the server's commands and returns its output. Throws if it fails.
    static QString Run(const QString& command, const QStringList& arguments);
    /// Stops the server.
    void EndServer() const;
    /// The printed documents, in order.
    QStringList Printed() const;
    /// Every job that the server has ever accepted, finished or not, such as "Lab-1".
    static QStringList Jobs();
    /// The documents in the server's spool folder.
    QStringList Spooled() const;

private:
    void Lab(const QString& command) const;

    QTemporaryDir m_folder;
};

/// Whether a document has been written completely.
bool IsWhole(const QString& document);

/// The texts of a page of a document, as a PDF reader selects them; pages count from 1.
QString PageText(const QString& document, int page);
/// A document's number of pages, its number of pictures, and its title.
int PageCount(const QString& document);
int PictureCount(const QString& document);
QString Title(const QString& document);
