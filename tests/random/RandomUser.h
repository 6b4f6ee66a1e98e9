#pragma once

#include "History.h"
#include "Program.h"
#include "QuendNames.h"
#include "ReferenceModel.h"

#include <QPointer>
#include <QStringList>

#include <array>
#include <map>
#include <optional>
#include <utility>

class QAction;
class QComboBox;
class QDialog;
class QLineEdit;
struct Step;

/// Operates the program by keys, mouse and menus, and updates the reference model. A step reads the
/// window, acts like a user, and then applies the rules to the reference model. Checks.h compares
/// the two afterwards.
class RandomUser {
public:
    /// Starts the program on a separate store, with the formats of a country.
    explicit RandomUser(std::size_t country);
    ~RandomUser();
    Q_DISABLE_COPY_MOVE(RandomUser)

    /// Takes a step and processes all events that follow from it.
    void Take(const Step& step);

    // Interface for the checks.
    const ReferenceModel& Model() const { return m_model; }
    Program& TheProgram() { return m_program; }
    QWidget* Control(Field field) const;
    QString ShownIn(Field field) const;
    /// The comparison window; null while it is closed.
    static QWidget* Comparison();
    std::optional<Field> Edited() const { return m_edited; }
    /// The expected text of the number field being edited.
    const QString& EditedText() const { return m_text; }
    const QStringList& ExpectedQuestions() const { return m_questions; }
    /// Errors found during the step itself.
    QStringList complaints;
    bool keptChanged = true; ///< the saved worksheets may have changed since the last check

    // The steps; each interprets its two numbers differently.
    void EnterField(unsigned a, unsigned b);
    void Type(unsigned a, unsigned b);
    void Paste(unsigned a, unsigned b);
    void EditText(unsigned a, unsigned b);
    void UseClipboard(unsigned a, unsigned b);
    void Tab(unsigned a, unsigned b);
    void Return(unsigned a, unsigned b);
    void Arrow(unsigned a, unsigned b);
    void Choose(unsigned a, unsigned b);
    void ChooseType(unsigned a, unsigned b);
    void TypeDay(unsigned a, unsigned b);
    void FillOffer(unsigned a, unsigned b);
    void FillCurrent(unsigned a, unsigned b);
    void Intend(unsigned a, unsigned b);
    void ClearIntended(unsigned a, unsigned b);
    void EnterAgain(unsigned a, unsigned b);
    void LeaveOut(unsigned a, unsigned b);
    void Tick(unsigned a, unsigned b);
    void Drop(unsigned a, unsigned b);
    void Sort(unsigned a, unsigned b);
    void Wheel(unsigned a, unsigned b);
    void ClickBar(unsigned a, unsigned b);
    void OpenLender(unsigned a, unsigned b);
    void LetSecondPass(unsigned a, unsigned b);
    void TypeName(unsigned a, unsigned b);
    void Save(unsigned a, unsigned b);
    void PickName(unsigned a, unsigned b);
    void Reload(unsigned a, unsigned b);
    void New(unsigned a, unsigned b);
    void Delete(unsigned a, unsigned b);
    void BringBack(unsigned a, unsigned b);
    void Rename(unsigned a, unsigned b);
    void CloseAndStart(unsigned a, unsigned b);
    void CloseUnnamed(unsigned a, unsigned b);
    void SwitchLanguage(unsigned a, unsigned b);
    void OpenOptions(unsigned a, unsigned b);
    void Print(unsigned a, unsigned b);
    void OpenAbout(unsigned a, unsigned b);
    void OpenHelp(unsigned a, unsigned b);
    void AskWhatsThis(unsigned a, unsigned b);
    void Share(unsigned a, unsigned b);
    void Undo(unsigned a, unsigned b);
    void Redo(unsigned a, unsigned b);
    void UseRow(unsigned a, unsigned b);
    void PasteCells(unsigned a, unsigned b);
    void CopyTable(unsigned a, unsigned b);
    void OpenComparison(unsigned a, unsigned b);
    void CloseComparison(unsigned a, unsigned b);
    void CompareOtherwise(unsigned a, unsigned b);
    void EnterCosts(unsigned a, unsigned b);
    void SortCosts(unsigned a, unsigned b);
    void Resize(unsigned a, unsigned b);
    void ClickAnywhere(unsigned a, unsigned b);

private:
    static constexpr std::size_t FieldIds = static_cast<std::size_t>(FieldId::Who) + 1;

    /// The contents of the field being edited before a step.
    struct View {
        QString text;
        bool modified = false;
        bool ticked = false;
    };

    // Input
    void Enter(Field field);
    void ChooseFrom(Field field, unsigned b);
    void Retype(Field field, const QString& text);
    void PickAgain(Field field);
    void FillAll(std::initializer_list<Field> fields, unsigned b);
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void TypeText(const QString& text);
    bool Click(const QWidget& control);
    bool ClickAt(QPoint place);
    void Trigger(const char* entry);
    void PickEntry(QComboBox& list, int entry);
    /// Runs `open`, which opens a dialog, and `act` in it. No dialog is open afterwards.
    void InDialog(const std::function<void()>& open, const std::function<void(QDialog&)>& act);
    static void Settle();

    // Inspection
    Loan& Window() const { return m_program.Window(); }
    QAction& Entry(const char* name) const;
    QWidget* Named(const QString& name) const;
    bool IsVisible(const QWidget& control) const;
    std::optional<Field> FieldOf(const QWidget* control) const;
    std::optional<Field> FocusField() const;
    View Look() const;
    View LookAt(Field field) const;
    QLineEdit* EditOf(Field field) const;
    Field AnyInput(unsigned number) const;
    std::optional<Row> ComputedRow(unsigned number) const;
    QString CopiedText(Field field, const QString& shown) const;

    // Undo
    Picture TakePicture() const;
    void Remember();
    QLineEdit* InnerEdit() const;
    void PressUndo(bool redo, unsigned manner);
    int GoTo(const Picture& picture, bool redo, unsigned manner);
    void Compare(const Picture& picture);

    // The reference model
    bool IsRefused(const View& before) const;
    /// Whether the focus may have moved: if the field is refused, nothing else may have happened.
    bool Follow(const View& before);
    /// Clicks a field. False if it is not reachable, or the previous field keeps the focus.
    bool ClickInto(Field field, const View& before);
    /// The first part of every menu command. False if the field is refused.
    bool Commit(const View& before);
    void LeaveInModel(const View& before);
    void EnterInModel(std::optional<Field> field);
    void Reenter() { EnterInModel(m_edited); }
    /// The program moves the focus there after the fields show the contents of the reference model.
    void Refocus(Field field);
    void WatchDay();
    void ObserveDay();
    void TakeValue(Field field, const QString& text);
    static bool IsBlockFor(std::optional<Field> field, const QString& text);
    void PasteInModel(const QString& text, const View& before);
    void RestoreInModel();
    QString WithName(int question) const;
    Answer PrepareAnswer(unsigned number, bool mayCancel);
    bool MayDrop(Answer answer);
    bool SaveInModel();
    bool RenameInModel(const QString& to);
    void PickInModel(const QString& name, Answer answer);
    void Complain(const QString& complaint) { complaints.append(complaint); }

    Program m_program;
    ReferenceModel m_model;
    std::optional<Field> m_edited;
    QString m_text;
    QStringList m_questions;
    History m_history;
    std::pair<bool, bool> m_manner; ///< language and unit of terms of the history
    std::optional<model::WorksheetState> m_saved;
    QList<QDate> m_days; ///< days that the date picker reported since the last check
    std::size_t m_displayed = 6;
    int m_taken = 0;
    mutable std::array<std::array<QPointer<QWidget>, FieldIds>, MostRows + 1> m_controls;
    mutable std::map<QString, QPointer<QWidget>> m_named;
};
