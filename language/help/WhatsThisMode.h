#pragma once

#include <QObject>

class QEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;
class QWidget;

namespace quend::help {

/// The mode in which a click on a control asks for its help instead of using it; this includes
/// read-only and disabled controls, headings, menus and their entries. Does not show the help.
///
/// Clicks are intercepted before any control receives them, so the focus does not move and no field
/// is left. A menu opens as usual; a click on its entry, or on the title of the open menu, asks. On
/// the keyboard, a button's access key or Space, and an entry's access key or Return, ask. Escape,
/// a click outside the windows, and switching to another program cancel the mode.
class WhatsThisMode : public QObject {
    Q_OBJECT

public:
    WhatsThisMode() = default;
    Q_DISABLE_COPY_MOVE(WhatsThisMode)
    ~WhatsThisMode() override;

    void Begin();
    void End();
    bool IsOn() const { return m_on; }

Q_SIGNALS:
    /// The mode has ended and menus are closed. `topic` is 0 if there is no help; `window` is one
    /// that stays open.
    void Asked(int topic, const QPoint& at, QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnPress(const QObject* receiver, const QMouseEvent& event);
    bool OnRelease(const QObject* receiver, const QMouseEvent& event);
    bool OnKey(QObject* watched, const QKeyEvent& event);
    bool OnShortcut(QObject* watched);
    void AskAt(QWidget& widget, const QPoint& at);
    void AskAbout(QObject& object);
    void Ask(int topic, const QPoint& at, QWidget& asked);

    bool m_on = false;
    bool m_pressed = false; ///< the press was intercepted; its release is still to come
};

} // namespace quend::help
