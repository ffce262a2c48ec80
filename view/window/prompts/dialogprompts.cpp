#include "view/window/prompts/dialogprompts.h"

#include "app/theme.h"
#include "view/box/ipaddressdialog.h"
#include "view/common/actionicon.h"
#include "view/window/prompts/closablebox.h"
#include "view/window/prompts/comparisontable.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QTreeView>

namespace {

constexpr QSize kPanelSize(800, 600);
constexpr int kButtonRowHeight = 84;
constexpr QSize kIconSize(72, 72);
constexpr int kTableHeight = 450; // pixels
constexpr QSize kFileDialogSize(1000, 660);
constexpr int kFileColumns[] = {330, 120, 120, 190}; // name, size, type, date

// More text than that scrolls.
constexpr int kMaxLines = 12;
constexpr int kMaxCharacters = 500;

struct AnswerText
{
    QMessageBox::StandardButton button;
    const char *text;
};

// In the order in which a box shows them.
constexpr AnswerText kAnswers[] = {
    {QMessageBox::Save, QT_TRANSLATE_NOOP("DialogPrompts", "Speichern")},
    {QMessageBox::Discard, QT_TRANSLATE_NOOP("DialogPrompts", "Verwerfen")},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("DialogPrompts", "Ja")},
    {QMessageBox::No, QT_TRANSLATE_NOOP("DialogPrompts", "Nein")},
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("DialogPrompts", "OK")},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("DialogPrompts", "Abbrechen")},
};

/// With large fonts Qt's own sizes cut off folders, file sizes and dates, and the buttons end where their texts end.
void makeRoomy(QFileDialog &dialog)
{
    dialog.setStyleSheet(QStringLiteral("QPushButton {padding: 0px 14px;}"));
    const auto buttons = dialog.findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        button->setIcon({}); // as in message boxes
    dialog.resize(kFileDialogSize.boundedTo(dialog.screen()->availableSize()));
    const auto *list = dialog.findChild<QTreeView *>(QStringLiteral("treeView")); // none in a platform's own dialog
    if (!list)
        return;
    int column = 0;
    for (const int width : kFileColumns)
        list->header()->resizeSection(column++, width);
}

/// The text in the middle of the panel; a hint right below it.
void spreadText(QMessageBox &box, QGridLayout &grid)
{
    const int height = kPanelSize.height() - kButtonRowHeight;
    auto *text = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    auto *hint = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"));
    if (!hint || !text) {
        grid.setRowMinimumHeight(0, height);
        return;
    }
    text->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    for (const int row : {0, 1})
        grid.setRowMinimumHeight(row, height / 2);
}

void scrollLongText(QMessageBox &box, QGridLayout &grid)
{
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    const int index = grid.indexOf(label);
    if (index < 0 || (box.text().count(QLatin1Char('\n')) < kMaxLines && box.text().size() <= kMaxCharacters))
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid.getItemPosition(index, &row, &column, &rows, &columns);
    grid.removeWidget(label);
    auto *area = new QScrollArea(&box);
    area->setWidget(label);
    area->setWidgetResizable(true);
    for (QWidget *part : {area->viewport(), static_cast<QWidget *>(label)})
        part->setAutoFillBackground(false); // or it is painted in the window's grey
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid.addWidget(area, row, column, rows, columns);
}

void prepare(QFileDialog &dialog, const QString &filter)
{
    makeRoomy(dialog);
    dialog.setNameFilters(filter.split(QStringLiteral(";;")));
    const auto useSuffix = [&dialog](const QString &selected) { dialog.setDefaultSuffix(filterSuffix(selected)); };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, useSuffix);
    useSuffix(dialog.selectedNameFilter());
}

/// Where a dialog starts that may have been given a file.
QString folderOf(const QString &start)
{
    return start.isEmpty() || QFileInfo(start).isDir() ? start : QFileInfo(start).absolutePath();
}

void setTexts(QMessageBox &box, const QString &title, const QString &text, const QString &hint)
{
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText); // what the user typed and what the box sent stays as it is
    box.setText(QString(text).replace(QLatin1String("<br>"), QLatin1String("\n"))); // the one tag in the texts
    box.setInformativeText(hint);
    if (auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        label->setTextFormat(Qt::PlainText);
}

QString questionIcon(bool isDestructive)
{
    return isDestructive ? QStringLiteral("alert.png") : QStringLiteral("help-circle-outline.png");
}

/// Between the text, which gives up the height of a panel, and the buttons; over the whole width.
void putBelowText(QMessageBox &box, QWidget *table)
{
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    if (!grid)
        return;
    if (auto *icon = box.findChild<QWidget *>(QStringLiteral("qt_msgboxex_icon_label"))) {
        grid->removeWidget(icon); // it reaches into the row of the table
        grid->addWidget(icon, 0, 0, Qt::AlignVCenter);
    }
    grid->setRowMinimumHeight(0, 0);
    grid->addWidget(table, 1, 0, 1, grid->columnCount());
    table->setMinimumHeight(kTableHeight);
    box.setStyleSheet(box.styleSheet() + QStringLiteral("QLabel#qt_msgbox_label {min-height: 70px;}"));
}

QString chosenFile(QFileDialog &dialog)
{
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

QString filterSuffix(const QString &nameFilter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
    return pattern.match(nameFilter).captured(1);
}

void fillMessageBox(QMessageBox &box, const StandardQuestion &question)
{
    setTexts(box, question.title, question.text, question.hint);
    // The platform's order would tear apart what reads as "save, discard, cancel".
    for (const AnswerText &answer : kAnswers) {
        if (!question.buttons.testFlag(answer.button))
            continue;
        QPushButton *button = box.addButton(answer.button);
        button->setText(QCoreApplication::translate("DialogPrompts", answer.text));
        button->setIcon({}); // some desktops give it one, of a size for small type
        if (!box.defaultButton() || answer.button == question.safest)
            box.setDefaultButton(button);
    }
}

void makePanel(QMessageBox &box, const QString &iconFile)
{
    box.setIconPixmap(actionIcon(iconFile, theme::qColorBackground).pixmap(kIconSize));
    // The icon is a label too and must not be as wide as the text.
    box.setStyleSheet(
        QStringLiteral("QLabel#qt_msgboxex_icon_label {min-width: %1px; max-width: %1px;}"
                       "QLabel#qt_msgbox_label {padding-right: 24px;}"
                       "QLabel#qt_msgbox_informativelabel {min-height: 0px; font-size: 18px; padding-left: 2px;}"
                       "QPushButton {padding: 0px 20px;}")
            .arg(kIconSize.width() + kIconSize.width() / 2));
    // A message box sets its size by its layout and ignores the minimum in the sheet.
    if (auto *grid = qobject_cast<QGridLayout *>(box.layout())) {
        if (auto *icon = box.findChild<QWidget *>(QStringLiteral("qt_msgboxex_icon_label")))
            grid->setAlignment(icon, Qt::AlignVCenter);
        spreadText(box, *grid);
        scrollLongText(box, *grid);
        grid->addItem(new QSpacerItem(kPanelSize.width(), 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

QWidget *DialogPrompts::window() const
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog : m_window.data();
}

int DialogPrompts::run(QDialog &dialog)
{
    const TypingGuard guard(&dialog, m_isUninvited ? m_typingPause : 0);
    return dialog.exec();
}

QMessageBox::StandardButton DialogPrompts::answerIn(QMessageBox &box)
{
    run(box);
    return box.standardButton(box.clickedButton());
}

QMessageBox::StandardButton DialogPrompts::ask(const StandardQuestion &question)
{
    ClosableBox box(window());
    fillMessageBox(box, question);
    makePanel(box, questionIcon(question.isDestructive));
    return answerIn(box);
}

int DialogPrompts::choose(const Choice &choice)
{
    ClosableBox box(window());
    setTexts(box, choice.title, choice.text, choice.hint);
    QVector<QAbstractButton *> buttons;
    for (const QString &answer : choice.answers)
        buttons.append(box.addButton(answer, QMessageBox::AcceptRole)); // one role: the order stays
    box.setDefaultButton(qobject_cast<QPushButton *>(buttons.value(choice.safest)));
    makePanel(box, questionIcon(choice.isDestructive));
    run(box);
    return buttons.indexOf(box.clickedButton()); // none was clicked: -1
}

QMessageBox::StandardButton DialogPrompts::compare(const Comparison &comparison)
{
    ClosableBox box(window());
    fillMessageBox(box, {comparison.title, comparison.text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No});
    makePanel(box, questionIcon(false));
    putBelowText(box, new ComparisonTable(comparison, &box));
    return answerIn(box);
}

void DialogPrompts::tell(const QString &title, const QString &text, const QString &iconFile)
{
    ClosableBox box(window());
    fillMessageBox(box, {title, text, QMessageBox::Ok});
    makePanel(box, iconFile);
    run(box); // there is one answer only
}

void DialogPrompts::inform(const QString &title, const QString &text)
{
    tell(title, text, QStringLiteral("information.png"));
}

void DialogPrompts::warn(const QString &title, const QString &text)
{
    tell(title, text, QStringLiteral("alert.png"));
}

QString DialogPrompts::openFileName(const QString &title, const QString &start, const QString &filter)
{
    QFileDialog dialog(window(), title, folderOf(start));
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    prepare(dialog, filter);
    return chosenFile(dialog);
}

QString DialogPrompts::saveFileName(const QString &title, const QString &start, const QString &filter)
{
    QFileDialog dialog(window(), title, folderOf(start));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    prepare(dialog, filter);
    if (folderOf(start) != start)
        dialog.selectFile(QFileInfo(start).fileName());
    return chosenFile(dialog);
}

QString DialogPrompts::openFolder(const QString &title, const QString &folder)
{
    QFileDialog dialog(window(), title, folder);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    makeRoomy(dialog);
    return chosenFile(dialog);
}

std::optional<QString> DialogPrompts::askAddress(const QString &current)
{
    IPAddressDialog dialog(current, m_isValid, m_window);
    if (run(dialog) == QDialog::Accepted)
        return dialog.address();
    return std::nullopt;
}

void DialogPrompts::setAddressValidator(std::function<bool(const QString &)> isValid)
{
    m_isValid = std::move(isValid);
}
