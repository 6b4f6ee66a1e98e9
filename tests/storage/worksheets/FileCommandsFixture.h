#pragma once

#include "FileCommands.h"
#include "LoanNameBox.h"
#include "QuendNames.h"
#include "StoreFolder.h"
#include "WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>

#include <memory>

/// The window with its File menu on a separate store, and user actions on it.
class FileCommandsTest : public WindowTest {
protected:
    FileCommandsTest() { Begin({}, m_folder.Store()); }
    ~FileCommandsTest() override { m_files.reset(); }

    void Begin(const Start& start, const RegistryAPI& store) {
        m_files.reset();
        Open(start);
        Take(store);
    }
    /// Continues with this store.
    void Take(const RegistryAPI& store) {
        m_files.reset();
        m_files = std::make_unique<FileCommands>(Window(), WorksheetStore(store));
        Window().OnUnload([this] { return m_files->MayDrop(); });
    }

    void Trigger(QStringView entry) {
        Window().findChild<QAction*>(entry.toString())->trigger();
        Settle();
    }
    void TypeName(QStringView name) {
        Click(u"cboLoanName");
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Delete);
        Type(name);
    }
    void KeepLoan(QStringView name, QStringView amount) {
        TypeName(name);
        Fill(u"txtLoanAmount", amount);
        Trigger(u"mnuFileSave");
        ASSERT_FALSE(Sheet().Dirty());
    }
    /// Opens the list of names by its key and selects an entry.
    void Pick(int index) {
        Click(u"cboLoanName");
        Press(Qt::Key_Down);
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        Settle();
        Press(Qt::Key_Home);
        for (int entry = 0; entry < index; ++entry) {
            Press(Qt::Key_Down);
        }
        Press(Qt::Key_Return);
        ASSERT_TRUE(WaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
        ActivateAgain();
        Settle();
    }
    LoanNameBox& NameBox() { return Get<LoanNameBox>(u"cboLoanName"); }
    QStringList Kept() const { return WorksheetStore(m_folder.Store()).Names(); }
    std::string KeptText(const std::string& loan, const std::string& value) const {
        return m_folder.Text(StoreFolder::LoanKey(loan), value);
    }
    QStringList Entries() {
        QStringList entries;
        for (int i = 0; i < NameBox().count(); ++i) {
            entries.append(NameBox().itemText(i));
        }
        return entries;
    }

    StoreFolder m_folder;
    std::unique_ptr<FileCommands> m_files;
};
