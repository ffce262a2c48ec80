#include "view/terminal/tabdatalogger.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "view/common/logging.h"
#include "view/common/tabstyle.h"
#include "view/terminal/loggertext.h"
#include "view/terminal/ringbuffer.h"
#include "view/terminal/streamedit.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kNamesFirst = 1000; // before the empty room beside them

struct LoggedSample
{
    double seconds = 0.0;
    std::array<double, kNumSensors> values{};
};

/// As wide as its name; where there is too little room it shrinks and shortens the name.
class NameBox : public QCheckBox
{
public:
    explicit NameBox(QWidget *parent)
        : QCheckBox(parent)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    }
    void setName(QString name)
    {
        setToolTip(Qt::convertFromPlainText(name));
        setAccessibleName(name);
        // A name may hold an ampersand, which a check box would take for a mnemonic.
        setText(name.replace(QLatin1Char('&'), QLatin1String("&&")));
        setMaximumWidth(sizeHint().width());
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QCheckBox::changeEvent(event);
        // The style sheet sets another font than the constructor saw.
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            setMaximumWidth(sizeHint().width());
    }
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        initStyleOption(&option);
        const QRect room = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
        option.text = fontMetrics().elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
        painter.drawControl(QStyle::CE_CheckBox, option);
    }
};

} // namespace

struct TabDataLogger::Private
{
    RingBuffer<LoggedSample> pending{TabDataLogger::kMaximumLines}; // the field would drop older lines anyway
    std::array<NameBox *, kNumSensors> boxes{};
    LoggerColumns columns{};
    bool anyColumn = false;
    QStringList names;
    StreamEdit *edit = nullptr;
    QPushButton *clear = nullptr;

    [[nodiscard]] QString takePending();
    void createBoxes(TabDataLogger *tab);
    void layOut(QWidget *tab) const;
};

QString TabDataLogger::Private::takePending()
{
    QStringList lines;
    pending.forEach(
        [&](const LoggedSample &sample) { lines.append(loggerSampleText(sample.seconds, sample.values, columns)); });
    pending.clear();
    return lines.join(QLatin1Char('\n'));
}

void TabDataLogger::Private::createBoxes(TabDataLogger *tab)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i] = new NameBox(tab);
        boxes[i]->setObjectName(QStringLiteral("loggerCheckBoxA%1").arg(i));
        connect(boxes[i], &QCheckBox::toggled, tab, &TabDataLogger::onSensorToggled);
    }
}

void TabDataLogger::Private::layOut(QWidget *tab) const
{
    auto *row = new QHBoxLayout;
    row->setSpacing(20);
    for (NameBox *box : boxes)
        row->addWidget(box, kNamesFirst);
    row->addStretch(1);
    row->addWidget(clear);
    auto *column = new QVBoxLayout(tab);
    column->addLayout(row);
    column->addWidget(edit, 1);
}

TabDataLogger::TabDataLogger(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->createBoxes(this);
    d->clear = new QtMaterialFlatButton(this);
    d->clear->setObjectName(QStringLiteral("loggerButtonClear"));
    d->edit = new StreamEdit(kMaximumLines, this);
    d->edit->setObjectName(QStringLiteral("editLogger"));
    d->edit->setStyleSheet(tabstyle::fixedPitchSheet());
    d->edit->setFont(QFont(QStringLiteral("Courier New")));
    d->edit->setSource([this] { return d->takePending(); });
    d->layOut(this);
    connect(d->clear, &QPushButton::clicked, this, &TabDataLogger::clearRequested);
    retranslateUi();
}

TabDataLogger::~TabDataLogger() = default;

void TabDataLogger::setSensorNames(const QStringList &names)
{
    if (names == d->names)
        return;
    d->names = names;
    retranslateUi();
}

void TabDataLogger::addSample(double seconds, const std::array<double, kNumSensors> &values)
{
    if (!d->anyColumn)
        return;
    d->pending.push({seconds, values});
    d->edit->scheduleFlush();
}

bool TabDataLogger::isAnySensorChecked() const
{
    return d->anyColumn;
}

void TabDataLogger::writeHeadline()
{
    d->edit->flush(); // samples that were taken before come above the headline
    d->edit->appendPlainText(loggerHeadlineText(d->columns));
}

void TabDataLogger::clear()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->pending.clear();
    d->edit->clear();
}

QString TabDataLogger::plainText()
{
    d->edit->flush();
    return d->edit->toPlainText();
}

void TabDataLogger::onSensorToggled()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    d->edit->flush(); // what was collected belongs to the columns before
    for (std::size_t i = 0; i < d->columns.size(); ++i)
        d->columns[i] = d->boxes[i]->isChecked();
    d->anyColumn = std::any_of(d->columns.cbegin(), d->columns.cend(), [](bool shown) { return shown; });
    if (d->anyColumn)
        emit headlineRequested();
}

void TabDataLogger::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabDataLogger::retranslateUi()
{
    for (int i = 0; i < kNumSensors; ++i) {
        d->boxes[static_cast<std::size_t>(i)]->setName(shownSensorName(d->names.value(i), i));
    }
    d->clear->setText(tr("&Leeren"));
    d->clear->setToolTip(tr("Alle Zeilen entfernen"));
    d->edit->setAccessibleName(tr("Messwerte als Text"));
    d->edit->setPlaceholderText(tr("Sensoren oben auswählen: Je Messwert erscheint eine Zeile."));
}
