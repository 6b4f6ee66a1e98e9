#pragma once

#include "AnswerTo.h"
#include "PrintCommands.h"
#include "PrintServer.h"
#include "PrinterInterface.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

/// Null if none is installed. It lives until the test program ends.
PrintServer* Server();

using DialogAnswer = AnswerTo<QPrintDialog>;

/// Clicks the dialog's own button.
void Accept(QPrintDialog& dialog);

/// A second printer, which accepts every document and stores none.
void AddOther();

/// A path in the server's folder.
QString InServerFolder(const QString& path);

/// The window with a print server or, if none is installed, with a file printer.
class PrintServerTest : public WindowTest {
protected:
    void Begin(std::chrono::milliseconds shownAtLeast = {}, std::function<void()> yield = {});
    void FillRows(int count);
    void Print(const std::function<void(QPrintDialog&)>& answer = Accept);
    PrintCommands& Commands() { return *m_commands; }
    frmPrint* Job() { return Window().findChild<frmPrint*>(); }
    QTimer& JobTimer();
    /// Begins a job of one offer; its pages are sent once it is hurried. False if it does not draw.
    bool BeginJob();
    void HurryJob() { JobTimer().setInterval(std::chrono::milliseconds(0)); }
    bool WaitForEnd();
    QStringList Printed() const;
    /// Documents are printed some time after they were sent.
    bool WaitForPaper(int count);
    void ExpectNoTrace(const QStringList& reported = {});

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PrinterInterface> m_printer;
    std::unique_ptr<PrintCommands> m_commands;
};

/// Tests that need a print server.
class ServerOnlyTest : public PrintServerTest {
protected:
    void SetUp() override;
};
