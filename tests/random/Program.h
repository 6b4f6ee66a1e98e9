#pragma once

#include "AboutCommands.h"
#include "FakeMessages.h"
#include "FakePrinter.h"
#include "FileCommands.h"
#include "HelpCommands.h"
#include "Loan.h"
#include "MailInterface.h"
#include "OptionsCommands.h"
#include "PictureDialog.h"
#include "PrintCommands.h"
#include "QuendNames.h"
#include "ShareCommands.h"
#include "StoreFolder.h"

#include <functional>
#include <memory>

/// Replaces the dialog in which the user chooses a picture.
class FoundPicture : public PictureChooser {
public:
    QString Choose(QWidget& /*parent*/, const PictureRequest& /*request*/) override {
        return answer;
    }
    QString answer;
};

/// A mail client that counts its messages.
class CountingMail : public MailInterface {
public:
    int SignOn() override { return signsOn ? 1 : 0; }
    void Send(int /*session*/, const MailMessage& /*message*/) override { ++sent; }
    void SignOff(int /*session*/) override {}

    bool signsOn = true;
    int sent = 0;
};

/// The whole program as users have it, but with test doubles for its interfaces: a separate store,
/// no message boxes, no printer, no mail. It can be closed and started again on the same store.
class Program {
public:
    Program();
    ~Program();
    Q_DISABLE_COPY_MOVE(Program)

    /// Throws std::runtime_error when the window does not become active.
    void Start(const QLocale& locale);
    void Shut();
    bool IsOpen() const { return m_parts != nullptr; }
    Loan& Window() const;
    frmPrint* Job() const;
    void Activate() const;
    /// The path of a picture that exists.
    QString Picture() const;
    std::vector<std::string> Kept() const;

    FakeMessages messages;
    FakePrinter printer;
    CountingMail mail;
    FoundPicture pictures;
    QString newName; ///< what the user answers to File, Rename
    std::function<void()> whilePrinting;

private:
    struct Parts;
    StoreFolder m_store;
    QTemporaryDir m_folder;
    std::unique_ptr<Parts> m_parts;
};
