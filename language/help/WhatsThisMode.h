#pragma once

#include <QObject>

class QEvent;
class QKeyEvent;
class QMouseEvent;
class QPoint;
class QWidget;

/// The mode in which the next control clicked is asked about instead of used: read-only and
/// disabled ones, headings, menus and their entries. It does not know the answers.
///
/// A click is caught before any control sees it, so neither the focus moves nor a field is left. A
/// menu opens as always, and the click on its entry, or on the name of the open menu, is the one
/// that asks. From the keyboard: a button's access key or the space bar, an entry's access or
/// return key. Escape, a click beside the windows, and leaving the program call the mode off.
class WhatsThisMode : public QObject {
    Q_OBJECT

public:
    ~WhatsThisMode() override;

    void Begin();
    void End();
    bool IsOn() const { return m_on; }

Q_SIGNALS:
    /// The mode is over and menus are closed. `topic` is 0 where nothing is explained; `window` is
    /// one that stays open.
    void Asked(int topic, const QPoint& at, QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnPress(const QObject* told, const QMouseEvent& event);
    bool OnRelease(const QObject* told, const QMouseEvent& event);
    bool OnKey(QObject* watched, const QKeyEvent& event);
    bool OnShortcut(QObject* watched);
    void AskAt(QWidget& widget, const QPoint& at);
    void AskAbout(QObject& object);
    void Ask(int topic, const QPoint& at, QWidget& asked);

    bool m_on = false;
    bool m_pressed = false; ///< the press was caught, its release is still to come
};
