#include "tools/kit-gallery/materialpages.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/material/qtmaterialscrollbar.h"
#include "kit/material/qtmaterialtextfield.h"
#include "kit/material/qtmaterialtoggle.h"
#include "tools/kit-gallery/gallery.h"

#include <QIcon>

namespace {

using State = GalleryPage::State;

QIcon icon()
{
    return QIcon(QStringLiteral(":/icons/delete.png"));
}

template <typename Button>
Button *createButton(bool checkable = false, bool checked = false)
{
    auto *button = new Button(QStringLiteral("Messen"));
    button->setCheckable(checkable);
    button->setChecked(checked);
    return button;
}

/// Both kinds of button have the same states.
template <typename Button>
GalleryPage *createButtonPage(const QString &name)
{
    auto *page = new GalleryPage(name);
    page->addRow(QStringLiteral("States"));
    page->addSample(QStringLiteral("normal"), createButton<Button>());
    page->addSample(QStringLiteral("hovered"), createButton<Button>(), State::Hovered);
    page->addSample(QStringLiteral("pressed"), createButton<Button>(), State::Pressed);
    page->addSample(QStringLiteral("focused"), createButton<Button>(), State::Focused);
    auto *disabled = createButton<Button>();
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    page->addRow(QStringLiteral("Checkable, and other contents"));
    page->addSample(QStringLiteral("unchecked"), createButton<Button>(true));
    page->addSample(QStringLiteral("checked"), createButton<Button>(true, true));
    page->addSample(QStringLiteral("icon and text"), new Button(icon(), QStringLiteral("Löschen")));
    page->addSample(QStringLiteral("icon"), new Button(icon(), QString()));
    auto *other = createButton<Button>();
    other->setColorKey(QStringLiteral("primary2"));
    page->addSample(QStringLiteral("\"primary2\""), other);
    page->addRow(QStringLiteral("More states"));
    auto *standard = createButton<Button>();
    standard->setDefault(true);
    page->addSample(QStringLiteral("default"), standard);
    page->addSample(QStringLiteral("checked, focused"), createButton<Button>(true, true), State::Focused);
    page->addSample(QStringLiteral("unchecked, hovered"), createButton<Button>(true), State::Hovered);
    auto *stuck = createButton<Button>(true, true);
    stuck->setEnabled(false);
    page->addSample(QStringLiteral("checked, disabled"), stuck);
    page->addSample(QStringLiteral("two lines"), new Button(QStringLiteral("Alle Schüsse\nlöschen")));
    return page;
}

QtMaterialToggle *createToggle(bool checked, bool enabled = true)
{
    auto *toggle = new QtMaterialToggle(QStringLiteral("Alle"));
    toggle->setChecked(checked);
    toggle->setEnabled(enabled);
    return toggle;
}

QtMaterialTextField *createField(const QString &text = QString())
{
    auto *field = new QtMaterialTextField(QStringLiteral("Werkzeug"));
    field->setText(text);
    field->setFixedWidth(230);
    return field;
}

QtMaterialScrollBar *createScrollBar(Qt::Orientation orientation, int maximum, int length)
{
    auto *bar = new QtMaterialScrollBar(orientation);
    bar->setRange(0, maximum);
    bar->setPageStep(100);
    bar->setValue(maximum / 3);
    if (orientation == Qt::Horizontal)
        bar->setFixedWidth(length);
    else
        bar->setFixedHeight(length);
    return bar;
}

} // namespace

GalleryPage *createRaisedButtonPage()
{
    return createButtonPage<QtMaterialRaisedButton>(QStringLiteral("QtMaterialRaisedButton"));
}

GalleryPage *createFlatButtonPage()
{
    return createButtonPage<QtMaterialFlatButton>(QStringLiteral("QtMaterialFlatButton"));
}

GalleryPage *createTogglePage()
{
    auto *page = new GalleryPage(QStringLiteral("QtMaterialToggle"));
    page->addRow(QStringLiteral("On"));
    page->addSample(QStringLiteral("normal"), createToggle(true));
    page->addSample(QStringLiteral("hovered"), createToggle(true), State::Hovered);
    page->addSample(QStringLiteral("pressed"), createToggle(true), State::Pressed);
    page->addSample(QStringLiteral("focused"), createToggle(true), State::Focused);
    page->addSample(QStringLiteral("disabled"), createToggle(true, false));
    page->addRow(QStringLiteral("Off"));
    page->addSample(QStringLiteral("normal"), createToggle(false));
    page->addSample(QStringLiteral("hovered"), createToggle(false), State::Hovered);
    page->addSample(QStringLiteral("pressed"), createToggle(false), State::Pressed);
    page->addSample(QStringLiteral("focused"), createToggle(false), State::Focused);
    page->addSample(QStringLiteral("disabled"), createToggle(false, false));
    page->addRow(QStringLiteral("Other"));
    page->addSample(QStringLiteral("without a label"), new QtMaterialToggle);
    auto *mirrored = createToggle(true);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    page->addSample(QStringLiteral("mirrored"), mirrored);
    return page;
}

GalleryPage *createTextFieldPage()
{
    const QString text = QStringLiteral("Deckel 4-fach");
    auto *page = new GalleryPage(QStringLiteral("QtMaterialTextField"));
    page->addRow(QStringLiteral("States"));
    page->addSample(QStringLiteral("empty"), createField());
    page->addSample(QStringLiteral("filled"), createField(text));
    page->addSample(QStringLiteral("focused"), createField(text), State::Focused);
    page->addSample(QStringLiteral("hovered"), createField(text), State::Hovered);
    page->addRow(QStringLiteral("Below the line"));
    QtMaterialTextField *helped = createField(text);
    helped->setHelperText(QStringLiteral("Wie auf dem Typenschild"));
    page->addSample(QStringLiteral("helper text"), helped);
    QtMaterialTextField *wrong = createField(text);
    wrong->setErrorText(QStringLiteral("Schon vergeben"));
    page->addSample(QStringLiteral("error"), wrong);
    QtMaterialTextField *counted = createField(text);
    counted->setMaxLength(20);
    counted->setCounterShown(true);
    counted->setClearable(true);
    page->addSample(QStringLiteral("counter and cross"), counted);
    QtMaterialTextField *disabled = createField(text);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    page->addRow(QStringLiteral("Other"));
    QtMaterialTextField *hinted = createField();
    hinted->setPlaceholderText(QStringLiteral("wie im Auftrag"));
    page->addSample(QStringLiteral("empty, focused"), hinted, State::Focused);
    QtMaterialTextField *fixed = createField(text);
    fixed->setReadOnly(true);
    page->addSample(QStringLiteral("read only"), fixed);
    QtMaterialTextField *secret = createField(text);
    secret->setEchoMode(QLineEdit::Password);
    page->addSample(QStringLiteral("password"), secret);
    QtMaterialTextField *plain = createField(text);
    plain->setLabel(QString());
    page->addSample(QStringLiteral("without a label"), plain);
    return page;
}

GalleryPage *createScrollBarPage()
{
    auto *page = new GalleryPage(QStringLiteral("QtMaterialScrollBar"));
    page->addRow(QStringLiteral("Horizontal"));
    page->addSample(QStringLiteral("normal"), createScrollBar(Qt::Horizontal, 300, 220));
    page->addSample(QStringLiteral("hovered"), createScrollBar(Qt::Horizontal, 300, 220), State::Hovered);
    QtMaterialScrollBar *dragged = createScrollBar(Qt::Horizontal, 300, 220);
    dragged->setValue(300); // where the gallery presses
    page->addSample(QStringLiteral("dragged"), dragged, State::Pressed);
    QtMaterialScrollBar *focused = createScrollBar(Qt::Horizontal, 300, 220);
    focused->setFocusPolicy(Qt::StrongFocus);
    page->addSample(QStringLiteral("focused"), focused, State::Focused);
    page->addRow(QStringLiteral("Contents"));
    page->addSample(QStringLiteral("very long contents"), createScrollBar(Qt::Horizontal, 1000000, 220));
    page->addSample(QStringLiteral("nothing to scroll"), createScrollBar(Qt::Horizontal, 0, 220));
    QtMaterialScrollBar *disabled = createScrollBar(Qt::Horizontal, 300, 220);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    page->addSample(QStringLiteral("vertical"), createScrollBar(Qt::Vertical, 300, 140));
    return page;
}
