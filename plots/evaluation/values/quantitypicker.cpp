#include "plots/evaluation/values/quantitypicker.h"

#include "app/theme.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QTextDocument>

#include <algorithm>

namespace {

// Rows of the grid: titles and boxes of the markers, titles of the parts, then the figures.
constexpr int kMarkerTitleRow = 0;
constexpr int kMarkerRow = 1;
constexpr int kPartTitleRow = 2;
constexpr int kFirstFigureRow = 3;
constexpr int kColumnWidth = 118; // pixels

int rowOf(const Quantity &quantity)
{
    return quantity.kind == Quantity::Kind::AtMarker ? kMarkerRow : kFirstFigureRow + static_cast<int>(quantity.kind);
}

QString sheet()
{
    return QStringLiteral("QuantityPicker {background-color: %1; border: 2px solid %2;}"
                          "QLabel {font-size: 15px; min-height: 24px;}"
                          "QCheckBox::indicator {width: 22px; height: 22px;}"
                          "QCheckBox {min-height: 26px; max-width: 26px; padding: 2px; spacing: 0px;"
                          " border: 1px solid transparent;}"
                          "QCheckBox:focus {border: 1px solid %2;}")
        .arg(theme::colorBackground, theme::colorPrimary);
}

} // namespace

QuantityPicker::QuantityPicker(QWidget *parent)
    : QFrame(parent, Qt::Popup)
{
    setStyleSheet(sheet());
    createBoxes();
    retranslateUi();
}

void QuantityPicker::createBoxes()
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(14, 10, 14, 12);
    grid->setVerticalSpacing(2);
    const auto addTitle = [&](int row, int column, Qt::Alignment alignment) {
        auto *label = new QLabel(this);
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(alignment);
        grid->addWidget(label, row, column);
        return label;
    };
    for (int kind = 0; kind < Quantity::kNumKinds; ++kind)
        m_rowTitles[static_cast<std::size_t>(kind)] =
            addTitle(rowOf({static_cast<Quantity::Kind>(kind), 0}), 0, Qt::AlignLeft | Qt::AlignVCenter);
    for (int marker = 0; marker < Quantity::kNumMarkers; ++marker)
        m_markerTitles[static_cast<std::size_t>(marker)] = addTitle(kMarkerTitleRow, marker + 1, Qt::AlignCenter);
    for (int part = 0; part <= Quantity::kNumPhases; ++part)
        m_columnTitles[static_cast<std::size_t>(part)] = addTitle(kPartTitleRow, part + 1, Qt::AlignCenter);
    for (const Quantity &quantity : Quantity::all()) {
        auto *box = new QCheckBox(this);
        box->setObjectName(quantity.key());
        grid->addWidget(box, rowOf(quantity), quantity.part + 1, Qt::AlignCenter);
        connect(box, &QCheckBox::clicked, this, [this, quantity](bool checked) { emit toggled(quantity, checked); });
        m_boxes.append(box);
    }
    for (int column = 1; column <= Quantity::kNumPhases + 1; ++column)
        grid->setColumnMinimumWidth(column, kColumnWidth);
    grid->setRowMinimumHeight(kPartTitleRow, 36);
}

void QuantityPicker::setShown(const QVector<Quantity> &shown)
{
    for (int i = 0; i < m_boxes.size(); ++i) {
        const bool isShown = shown.contains(Quantity::all().at(i));
        m_boxes[i]->setChecked(isShown);
        m_boxes[i]->setEnabled(!isShown || shown.size() > 1); // the table needs at least one column
    }
}

void QuantityPicker::setPhaseNames(const QStringList &names)
{
    if (names == m_phaseNames)
        return;
    m_phaseNames = names;
    retranslateUi();
}

void QuantityPicker::popUpBelow(const QWidget *widget)
{
    adjustSize();
    QPoint corner = widget->mapToGlobal(QPoint(widget->width() - width(), widget->height() + 2));
    if (const QScreen *screen = widget->screen()) {
        const QRect free = screen->availableGeometry();
        corner.setX(std::clamp(corner.x(), free.left(), std::max(free.left(), free.right() - width())));
        corner.setY(std::clamp(corner.y(), free.top(), std::max(free.top(), free.bottom() - height())));
    }
    move(corner);
    show();
    const auto first =
        std::find_if(m_boxes.begin(), m_boxes.end(), [](const QCheckBox *box) { return box->isEnabled(); });
    if (first != m_boxes.end())
        (*first)->setFocus(Qt::PopupFocusReason);
}

void QuantityPicker::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

void QuantityPicker::retranslateUi()
{
    const QString rows[] = {tr("Wert"),       tr("Minimum"),  tr("Maximum"),
                            tr("Mittelwert"), tr("Integral"), tr("Zeit der Spitze")};
    for (std::size_t i = 0; i < m_rowTitles.size(); ++i)
        m_rowTitles[i]->setText(rows[i]);
    m_rowTitles[static_cast<std::size_t>(Quantity::Kind::Integral)]->setToolTip(
        tr("Summe der Messwerte mal Abtastzeit"));
    m_rowTitles[static_cast<std::size_t>(Quantity::Kind::PeakTime)]->setToolTip(
        tr("Zeit vom Beginn des Schusses bis zum größten Wert"));
    for (int marker = 0; marker < Quantity::kNumMarkers; ++marker)
        m_markerTitles[static_cast<std::size_t>(marker)]->setText(tr("Marker %1").arg(marker + 1));
    m_columnTitles[0]->setText(tr("Ganzer Schuss"));
    for (int phase = 1; phase <= Quantity::kNumPhases; ++phase) {
        QLabel *title = m_columnTitles[static_cast<std::size_t>(phase)];
        const QString given = m_phaseNames.value(phase - 1).simplified();
        const QString name = given.isEmpty() ? tr("Phase %1").arg(phase) : given;
        title->setTextFormat(Qt::PlainText); // the name is the user's
        title->setText(title->fontMetrics().elidedText(name, Qt::ElideRight, kColumnWidth));
        title->setToolTip(Qt::convertFromPlainText(name));
    }
    for (int i = 0; i < m_boxes.size(); ++i) {
        const Quantity &quantity = Quantity::all().at(i);
        const bool isMarker = quantity.kind == Quantity::Kind::AtMarker;
        const auto part = static_cast<std::size_t>(quantity.part);
        const QString column = isMarker ? m_markerTitles[part]->text() : m_columnTitles[part]->text();
        m_boxes[i]->setAccessibleName(rows[static_cast<int>(quantity.kind)] + QLatin1String(", ") + column);
    }
}
