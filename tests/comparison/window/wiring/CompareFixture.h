#pragma once

#include "CompareCommands.h"
#include "Comparison.h"
#include "Figures.h"
#include "QuendNames.h"
#include "UserInput.h"
#include "WindowFixture.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QAbstractItemModel;

namespace quend::compare {
class frmCompare;
}

// The headers of several layers are read at once, so their names are given one by one.
using quend::compare::CompareCommands;
using quend::compare::CompareWorld;
using quend::compare::Figure;

/// A user in a window other than the main window.
class UserOf : public UserInput {
public:
    explicit UserOf(QWidget& window) : m_window(&window) {}

    using UserInput::Activate;
    using UserInput::Click;
    using UserInput::Control;
    using UserInput::Get;
    using UserInput::Press;
    using UserInput::Settle;
    using UserInput::Text;
    using UserInput::Type;

    /// Enters a field, types and leaves it with the Tab key.
    void Fill(QStringView name, QStringView text) {
        Click(name);
        Settle();
        Type(text);
        Press(Qt::Key_Tab);
        Settle();
    }

private:
    QWidget& UsersWindow() const override { return *m_window; }

    QWidget* m_window;
};

/// The main window with three offers and a loan held today, and the commands of the Tools menu in
/// a world that records what it is asked to do.
class CompareTest : public WindowTest {
protected:
    CompareTest();
    ~CompareTest() override;
    Q_DISABLE_COPY_MOVE(CompareTest)

    /// Opens the main window, its worksheet still empty.
    void OpenMain(const Start& start = {});
    /// Row 0: Cedar & Sons 6 %, intended 2,500. Row 1: Lakeside 5.5 % with two points. Row 2: no
    /// rate. The loan held today costs 7.25 %.
    void FillSheet();
    /// OpenMain, FillSheet and Ctrl+K.
    void OpenCompare(const Start& start = {});
    void PressCtrlK();

    /// Null while it has not been opened, or was destroyed.
    static QWidget* CompareWindow();
    static bool IsOpen() { return CompareWindow() != nullptr && CompareWindow()->isVisible(); }
    static UserOf User() { return UserOf(*CompareWindow()); }
    static void ShowPage(int page);
    static QAbstractItemModel& Table(QStringView name);
    /// A cell of the table of costs, as it is shown.
    static QString Cell(int row, Figure figure);
    static QStringList Column(Figure figure);
    static QStringList Headings(QStringView table);
    static QString Answer() { return User().Text(u"lblAnswer"); }
    static QStringList TabTitles();

    /// What the comparison says of the worksheet with the kept settings.
    quend::comparison::ComparisonResult Expected();
    QString Currency(const std::optional<Money>& amount) const;
    void EnterInto(FieldId field, Row row, QStringView text);
    void EndCommands() { m_commands.reset(); }
    CompareCommands& Commands() { return *m_commands; }

    /// What the window asked of the world.
    struct Outside {
        ExportFile file; ///< the answer of the dialog
        QString suggested;
        QStringList filters;
        QStringList printed; ///< titles
        QStringList pdfs;    ///< files
        std::size_t pages = 0;
        QStringList texts; ///< on the pages
        QString pdfFault;
        int restored = 0;
        int saved = 0;
        QByteArray columns;
    } m_outside;

private:
    CompareWorld World();

    std::unique_ptr<CompareCommands> m_commands;
};
