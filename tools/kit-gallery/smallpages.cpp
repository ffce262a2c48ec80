#include "tools/kit-gallery/smallpages.h"

#include "kit/small/clickablelabel.h"
#include "kit/small/coloredbutton.h"
#include "kit/small/leftrightstepbox.h"
#include "kit/small/progressindicator.h"
#include "kit/small/shadowframe.h"
#include "tools/kit-gallery/gallery.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {

using State = GalleryPage::State;

ColoredButton *createButton(const QString &text, const QColor &color, bool checkable, bool checked = false)
{
    auto *button = new ColoredButton(text);
    button->setColor(color);
    button->setCheckable(checkable);
    button->setChecked(checked);
    return button;
}

ColoredButton *createSensorButton(bool checked)
{
    return createButton(QStringLiteral("Sensor 1"), Qt::darkRed, true, checked);
}

LeftRightStepBox *createStepBox(int maximum, int value)
{
    auto *box = new LeftRightStepBox;
    box->setRange(1, maximum);
    box->setTotalShown(true);
    box->setValue(value);
    box->setMinimumWidth(230);
    return box;
}

ShadowFrame *createCard(ShadowFrame::Elevation elevation)
{
    auto *frame = new ShadowFrame;
    frame->setElevation(elevation);
    frame->setFixedSize(180, 110);
    auto *layout = new QVBoxLayout(frame);
    layout->addWidget(new QLabel(QStringLiteral("215,4 bar")), 0, Qt::AlignCenter);
    return frame;
}

ProgressIndicator *createIndicator(int percent, int size)
{
    auto *indicator = new ProgressIndicator;
    indicator->setFixedSize(size, size);
    indicator->setPercent(percent);
    indicator->startAnimation();
    return indicator;
}

} // namespace

GalleryPage *createColoredButtonPage()
{
    auto *page = new GalleryPage(QStringLiteral("ColoredButton"));
    page->addRow(QStringLiteral("Checkable"));
    page->addSample(QStringLiteral("checked"), createSensorButton(true));
    page->addSample(QStringLiteral("unchecked"), createSensorButton(false));
    page->addSample(QStringLiteral("hovered"), createSensorButton(false), State::Hovered);
    page->addSample(QStringLiteral("pressed"), createSensorButton(false), State::Pressed);
    page->addSample(QStringLiteral("focused"), createSensorButton(true), State::Focused);
    page->addSample(QStringLiteral("focused"), createSensorButton(false), State::Focused);
    page->addRow(QStringLiteral("Colours"));
    const QList<QColor> colors{Qt::darkGreen, Qt::darkBlue, QColor(QStringLiteral("darkorange")),
                               Qt::darkCyan,  Qt::white,    Qt::black};
    for (const QColor &color : colors)
        page->addSample(color.name(), createButton(QStringLiteral("Druck"), color, true, true));
    page->addRow(QStringLiteral("Other"));
    page->addSample(QStringLiteral("plain"), createButton(QStringLiteral("Kurve"), Qt::darkGreen, false));
    auto *picker = createButton(QString(), QColor(QStringLiteral("darkorange")), false);
    picker->setPicksColor(true);
    page->addSample(QStringLiteral("picks its colour"), picker);
    auto *disabled = createSensorButton(true);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    auto *narrow = createButton(QStringLiteral("Werkzeuginnendruck"), Qt::darkBlue, true, true);
    narrow->setFixedWidth(130);
    page->addSample(QStringLiteral("too narrow"), narrow);
    auto *large = createButton(QStringLiteral("Groß"), Qt::darkCyan, true, true);
    large->setMinimumHeight(60);
    page->addSample(QStringLiteral("large"), large);
    return page;
}

GalleryPage *createStepBoxPage()
{
    auto *page = new GalleryPage(QStringLiteral("LeftRightStepBox"));
    page->addRow(QStringLiteral("States"));
    page->addSample(QStringLiteral("normal"), createStepBox(345, 12));
    page->addSample(QStringLiteral("focused"), createStepBox(345, 12), State::Focused);
    page->addSample(QStringLiteral("pressed"), createStepBox(345, 12), State::Pressed);
    page->addRow(QStringLiteral("Ends"));
    page->addSample(QStringLiteral("first"), createStepBox(345, 1));
    page->addSample(QStringLiteral("last"), createStepBox(345, 345));
    page->addSample(QStringLiteral("nothing to choose from"), createStepBox(0, 0));
    page->addRow(QStringLiteral("Other"));
    auto *disabled = createStepBox(345, 12);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    auto *named = createStepBox(345, 12);
    named->setTotalShown(false);
    named->setPrefix(QStringLiteral("Schuss "));
    page->addSample(QStringLiteral("with a prefix"), named);
    auto *mirrored = createStepBox(12345, 12);
    mirrored->setLayoutDirection(Qt::RightToLeft);
    page->addSample(QStringLiteral("mirrored"), mirrored);
    auto *small = createStepBox(345, 12);
    small->setMinimumWidth(0);
    small->setFixedSize(small->minimumSizeHint());
    page->addSample(QStringLiteral("smallest"), small);
    return page;
}

GalleryPage *createClickableLabelPage()
{
    auto *page = new GalleryPage(QStringLiteral("ClickableLabel"));
    page->addRow(QStringLiteral("States"));
    page->addSample(QStringLiteral("normal"), new ClickableLabel(QStringLiteral("Bild wählen")));
    page->addSample(QStringLiteral("hovered"), new ClickableLabel(QStringLiteral("Bild wählen")), State::Hovered);
    page->addSample(QStringLiteral("pressed"), new ClickableLabel(QStringLiteral("Bild wählen")), State::Pressed);
    page->addSample(QStringLiteral("focused"), new ClickableLabel(QStringLiteral("Bild wählen")), State::Focused);
    auto *disabled = new ClickableLabel(QStringLiteral("Bild wählen"));
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    auto *picture = new ClickableLabel;
    picture->setPixmap(QPixmap(QStringLiteral(":/icons/Ventaro-logo-mini.png")));
    page->addSample(QStringLiteral("picture, focused"), picture, State::Focused);
    return page;
}

GalleryPage *createShadowFramePage()
{
    auto *page = new GalleryPage(QStringLiteral("ShadowFrame"));
    page->addRow(QStringLiteral("Elevations"));
    page->addSample(QStringLiteral("low"), createCard(ShadowFrame::Elevation::Low));
    page->addSample(QStringLiteral("high"), createCard(ShadowFrame::Elevation::High));
    page->addSample(QStringLiteral("flat"), createCard(ShadowFrame::Elevation::Flat));
    page->addRow(QStringLiteral("States"));
    auto *raised = createCard(ShadowFrame::Elevation::Low);
    raised->setRaisedByHover(true);
    page->addSample(QStringLiteral("raised by hovering"), raised, State::Hovered);
    auto *selected = createCard(ShadowFrame::Elevation::Low);
    selected->setSelected(true);
    page->addSample(QStringLiteral("selected"), selected);
    auto *disabled = createCard(ShadowFrame::Elevation::High);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    return page;
}

GalleryPage *createProgressIndicatorPage()
{
    auto *page = new GalleryPage(QStringLiteral("ProgressIndicator"));
    page->addRow(QStringLiteral("Values and sizes"));
    page->addSample(QStringLiteral("turning"), createIndicator(ProgressIndicator::kTurning, 48));
    for (const int percent : {0, 42, 100})
        page->addSample(QStringLiteral("%1 %").arg(percent), createIndicator(percent, 48));
    page->addSample(QStringLiteral("large"), createIndicator(75, 96));
    page->addSample(QStringLiteral("small"), createIndicator(ProgressIndicator::kTurning, 20));
    ProgressIndicator *disabled = createIndicator(42, 48);
    disabled->setEnabled(false);
    page->addSample(QStringLiteral("disabled"), disabled);
    return page;
}
