#pragma once

#include "ExtrasNames.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class frmAbout;
}

namespace quend::extras {

/// The About box: shows the version record. The caller supplies the action of its System Info
/// button.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    frmAbout(QWidget& parent, const std::function<void()>& startSysInfo);
    Q_DISABLE_COPY_MOVE(frmAbout)
    ~frmAbout() override;

private:
    void Form_Load();

    std::unique_ptr<Ui::frmAbout> m_ui;
};

} // namespace quend::extras
