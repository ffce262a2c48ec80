#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialtoggle.h"
#include "model/model.h"
#include "plots/common/decimalspinbox.h"
#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/common/shottable.h"
#include "plots/evaluation/overlay/colordelegate.h"
#include "plots/evaluation/overlay/overlayplot.h"
#include "plots/evaluation/overlay/overlaytablemodel.h"
#include "plots/evaluation/overlay/tabevaluationoverlay.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPoint>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr double kLargestThreshold = 1e6;
constexpr double kMostSigmas = 10.0;
constexpr int kNarrowestTable = 300;  // pixels
constexpr int kUsualTable = 572;      // pixels that show all its columns
constexpr int kNumberWidth = 82;      // pixels for the title and the arrow beside it
constexpr int kTimeWidth = 180;       // pixels of a time stamp
constexpr int kDeviationWidth = 118;  // pixels, likewise
constexpr int kSmallColumnWidth = 36; // pixels of the columns without a title

QPoint choice(AlignBy by, int marker = 0)
{
    return {static_cast<int>(by), marker};
}

} // namespace

QLayout *TabEvaluationOverlay::createOptions()
{
    m_labelAlignment = new QLabel(this);
    m_comboAlignment = new QComboBox(this);
    m_comboAlignment->setObjectName(QStringLiteral("comboAlignment"));
    m_comboAlignment->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_labelAlignment->setBuddy(m_comboAlignment);
    m_spinBoxThreshold = new DecimalSpinBox(this);
    m_spinBoxThreshold->setObjectName(QStringLiteral("spinBoxThreshold"));
    m_spinBoxThreshold->setRange(-kLargestThreshold, kLargestThreshold);
    m_spinBoxThreshold->setAlignment(Qt::AlignCenter);
    m_spinBoxThreshold->setMinimumWidth(170);
    m_checkMean = new QtMaterialToggle(this);
    m_checkMean->setObjectName(QStringLiteral("checkMean"));
    m_checkBand = new QtMaterialToggle(this);
    m_checkBand->setObjectName(QStringLiteral("checkBand"));
    m_spinBoxSigmas = new DecimalSpinBox(this);
    m_spinBoxSigmas->setObjectName(QStringLiteral("spinBoxSigmas"));
    m_spinBoxSigmas->setRange(0.5, kMostSigmas);
    m_spinBoxSigmas->setSingleStep(0.5);
    m_spinBoxSigmas->setDecimals(1);
    m_spinBoxSigmas->setValue(3.0);
    m_spinBoxSigmas->setSuffix(QStringLiteral(" σ"));
    m_spinBoxSigmas->setAlignment(Qt::AlignCenter);
    m_spinBoxSigmas->setMinimumWidth(130);
    m_spinBoxSigmas->setEnabled(false);
    auto *layout = new QHBoxLayout;
    layout->setSpacing(10);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_labelAlignment, m_comboAlignment, m_spinBoxThreshold})
        layout->addWidget(widget);
    layout->addStretch();
    for (QWidget *widget : std::initializer_list<QWidget *>{m_checkMean, m_checkBand, m_spinBoxSigmas})
        layout->addWidget(widget);
    return layout;
}

void TabEvaluationOverlay::createTable()
{
    m_tableModel = new OverlayTableModel(this);
    m_sorted = new QSortFilterProxyModel(this);
    m_sorted->setSourceModel(m_tableModel);
    m_sorted->setSortRole(OverlayTableModel::kSortRole);
    m_table = newShotTable(this, QStringLiteral("tableOverlay"), m_sorted);
    m_table->setItemDelegateForColumn(OverlayTableModel::Color, new ColorDelegate(m_table));
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_table->setMinimumWidth(kNarrowestTable);
    m_table->installEventFilter(this);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(OverlayTableModel::Number, Qt::AscendingOrder);
    QHeaderView *header = m_table->horizontalHeader();
    header->setStyleSheet(QStringLiteral("font-size: 16px;"));
    header->setMinimumSectionSize(kSmallColumnWidth);
    const std::initializer_list<std::pair<int, int>> fixed{{OverlayTableModel::Color, kSmallColumnWidth},
                                                           {OverlayTableModel::Shown, kSmallColumnWidth},
                                                           {OverlayTableModel::Number, kNumberWidth},
                                                           {OverlayTableModel::Timestamp, kTimeWidth},
                                                           {OverlayTableModel::Deviation, kDeviationWidth}};
    for (const auto &[column, width] : fixed) {
        header->setSectionResizeMode(column, QHeaderView::Fixed);
        header->resizeSection(column, width);
    }
    header->setSectionResizeMode(OverlayTableModel::Label, QHeaderView::Stretch);
}

QWidget *TabEvaluationOverlay::createTableSide()
{
    createTable();
    m_buttonAll = new QtMaterialFlatButton(this);
    m_buttonAll->setObjectName(QStringLiteral("buttonAll"));
    m_buttonNone = new QtMaterialFlatButton(this);
    m_buttonNone->setObjectName(QStringLiteral("buttonNone"));
    m_buttonReference = new QtMaterialFlatButton(this);
    m_buttonReference->setObjectName(QStringLiteral("buttonReference"));
    m_status = new QLabel(this);
    m_status->setObjectName(QStringLiteral("labelStatus"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_buttonAll, 1);
    buttons->addWidget(m_buttonNone, 1);
    buttons->addWidget(m_buttonReference, 2);
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_status);
    layout->addLayout(buttons);
    return side;
}

QWidget *TabEvaluationOverlay::createPlot()
{
    m_plot = new OverlayPlot(this);
    m_plot->setObjectName(QStringLiteral("osziWidget"));
    m_plot->setMinimumSize(300, 140);
    m_plot->setVerticalMarkerCount(1);
    m_scrolledPlot = new ScrolledPlot(m_plot, this);
    return m_scrolledPlot;
}

void TabEvaluationOverlay::createLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    m_sensors = new SensorSelection(this);
    layout->addWidget(m_sensors);
    layout->addLayout(createOptions());
    auto *splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(8);
    splitter->addWidget(createTableSide());
    splitter->addWidget(createPlot());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({kUsualTable, kUsualTable});
    layout->addWidget(splitter, 1);
    const QSignalBlocker blocker(m_comboAlignment);
    m_comboAlignment->addItem(QString(), choice(AlignBy::Start));
    for (int marker = 0; marker < Model::kNumMarkers; ++marker)
        m_comboAlignment->addItem(QString(), choice(AlignBy::Marker, marker));
    m_comboAlignment->addItem(QString(), choice(AlignBy::Rising));
    m_comboAlignment->addItem(QString(), choice(AlignBy::Falling));
}

void TabEvaluationOverlay::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationOverlay::onSensorButtonToggled);
    connect(m_comboAlignment, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &TabEvaluationOverlay::onAlignmentChanged);
    connect(m_spinBoxThreshold, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &TabEvaluationOverlay::onThresholdChanged);
    connect(m_checkMean, &QCheckBox::toggled, this, &TabEvaluationOverlay::onMeanChanged);
    connect(m_checkBand, &QCheckBox::toggled, this, &TabEvaluationOverlay::onMeanChanged);
    connect(m_spinBoxSigmas, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
            &TabEvaluationOverlay::onMeanChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TabEvaluationOverlay::onSelectionChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TabEvaluationOverlay::onSelectionChanged);
    connect(m_tableModel, &OverlayTableModel::shownEdited, this, &TabEvaluationOverlay::onTable_shownEdited);
    connect(m_tableModel, &OverlayTableModel::colorEdited, this, &TabEvaluationOverlay::onTable_colorEdited);
    connect(m_tableModel, &OverlayTableModel::labelEdited, this, &TabEvaluationOverlay::onTable_labelEdited);
    connect(m_buttonAll, &QPushButton::clicked, this, &TabEvaluationOverlay::onButtonAll_clicked);
    connect(m_buttonNone, &QPushButton::clicked, this, &TabEvaluationOverlay::onButtonNone_clicked);
    connect(m_buttonReference, &QPushButton::clicked, this, &TabEvaluationOverlay::onButtonReference_clicked);
}

void TabEvaluationOverlay::retranslateUi()
{
    m_labelAlignment->setText(tr("Ausrichten"));
    retranslateAlignments();
    m_spinBoxThreshold->setToolTip(tr("Schwelle in der Einheit des Sensors"));
    m_spinBoxThreshold->setAccessibleName(m_spinBoxThreshold->toolTip());
    m_checkMean->setText(tr("&Mittelwert"));
    m_checkMean->setToolTip(tr("Mittelwert der gezeigten Kurven"));
    m_checkBand->setText(tr("&Band ±"));
    m_checkBand->setToolTip(tr("Streuung der gezeigten Kurven um ihren Mittelwert"));
    m_spinBoxSigmas->setAccessibleName(tr("Breite des Bandes in Sigma"));
    m_buttonAll->setText(tr("&Alle zeigen"));
    m_buttonNone->setText(tr("&Keine zeigen"));
    m_table->setAccessibleName(tr("Schüsse der Überlagerung"));
    m_tableModel->retranslate();
    showStatus();
    m_sensors->showSensors(model());
}

void TabEvaluationOverlay::retranslateAlignments()
{
    m_comboAlignment->setItemText(0, tr("am Beginn"));
    for (int marker = 1; marker <= Model::kNumMarkers; ++marker)
        m_comboAlignment->setItemText(marker, tr("Null bei Marker %1").arg(marker));
    m_comboAlignment->setItemText(Model::kNumMarkers + 1, tr("Schwelle steigend"));
    m_comboAlignment->setItemText(Model::kNumMarkers + 2, tr("Schwelle fallend"));
    m_comboAlignment->setToolTip(tr("Woran die Kurven übereinander liegen: an ihrem Beginn, mit ihren Werten bei einem"
                                    " Marker, oder wo sie zum ersten Mal eine Schwelle durchlaufen"));
}
