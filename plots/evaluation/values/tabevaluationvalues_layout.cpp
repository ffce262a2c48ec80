#include "kit/material/qtmaterialflatbutton.h"
#include "plots/charts/normalboxwidget.h"
#include "plots/charts/normaldistributionwidget.h"
#include "plots/evaluation/common/limitfield.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/common/shottable.h"
#include "plots/evaluation/common/trendchart.h"
#include "plots/evaluation/values/quantitypicker.h"
#include "plots/evaluation/values/quantitytablemodel.h"
#include "plots/evaluation/values/tabevaluationvalues.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int kNarrowestColumn = 60;
constexpr int kMeasuredRows = 40; // for the width of a column; of a hidden table all thousands would be, otherwise
constexpr int kWidestRightSide = 560;
constexpr int kLowestBell = 110;

QLabel *newFigure(QWidget *parent, const char *name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

void TabEvaluationValues::createTable()
{
    m_tableModel = new QuantityTableModel(this);
    m_table = newShotTable(this, QStringLiteral("tableValues"), m_tableModel);
    QHeaderView *header = m_table->horizontalHeader();
    header->setResizeContentsPrecision(kMeasuredRows);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setMinimumSectionSize(kNarrowestColumn);
    header->setSectionsClickable(true);
}

// Which quantity the right side and the trend show, and which ones the table has.
QLayout *TabEvaluationValues::createChoice()
{
    m_labelQuantity = new QLabel(this);
    m_quantityBox = new QComboBox(this);
    m_quantityBox->setObjectName(QStringLiteral("comboBoxQuantity"));
    m_quantityBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_quantityBox->setMinimumContentsLength(12);
    m_quantityBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_labelQuantity->setBuddy(m_quantityBox);
    m_buttonQuantities = new QtMaterialFlatButton(this);
    m_buttonQuantities->setObjectName(QStringLiteral("buttonQuantities"));
    m_picker = new QuantityPicker(this);
    auto *layout = new QHBoxLayout;
    layout->addWidget(m_labelQuantity);
    layout->addWidget(m_quantityBox, 1);
    layout->addWidget(m_buttonQuantities);
    return layout;
}

QLayout *TabEvaluationValues::createLimits()
{
    m_lowerLimit = new LimitField(this);
    m_lowerLimit->setObjectName(QStringLiteral("lowerLimit"));
    m_upperLimit = new LimitField(this);
    m_upperLimit->setObjectName(QStringLiteral("upperLimit"));
    m_cp = newFigure(this, "labelCp");
    m_cpk = newFigure(this, "labelCpk");
    m_outside = newFigure(this, "labelOutside");
    auto *figures = new QHBoxLayout;
    figures->setSpacing(18);
    figures->addWidget(m_cp);
    figures->addWidget(m_cpk);
    figures->addWidget(m_outside, 1, Qt::AlignRight);
    auto *layout = new QVBoxLayout;
    layout->setSpacing(2);
    layout->addWidget(m_lowerLimit);
    layout->addWidget(m_upperLimit);
    layout->addLayout(figures);
    return layout;
}

QLayout *TabEvaluationValues::createRightSide()
{
    m_box = new NormalBoxWidget(this);
    m_bell = new NormalDistributionWidget(this);
    m_bell->setMinimumHeight(kLowestBell);
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addLayout(createChoice());
    layout->addLayout(createLimits());
    layout->addWidget(m_box);
    layout->addWidget(m_bell, 1);
    return layout;
}

QLayout *TabEvaluationValues::createLeftSide()
{
    createTable();
    m_chart = new TrendChart(this);
    m_chart->setObjectName(QStringLiteral("trendChart"));
    auto *layout = new QVBoxLayout;
    layout->addWidget(m_table, 1);
    layout->addWidget(m_chart, 1);
    return layout;
}

void TabEvaluationValues::createLayout()
{
    // The tab key follows the order in which the parts are made.
    m_sensors = new SensorSelection(this);
    QLayout *left = createLeftSide();
    auto *rightSide = new QWidget(this);
    QLayout *right = createRightSide();
    right->setContentsMargins(0, 0, 0, 0);
    rightSide->setLayout(right);
    rightSide->setMaximumWidth(kWidestRightSide);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(12);
    middle->addLayout(left, 3);
    middle->addWidget(rightSide, 2);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->addWidget(m_sensors);
    layout->addLayout(middle, 1);
}

void TabEvaluationValues::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationValues::onSensors_sensorChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &TabEvaluationValues::onTable_currentChanged);
    connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this,
            &TabEvaluationValues::onHeader_sectionClicked);
    connect(m_quantityBox, qOverload<int>(&QComboBox::activated), this, &TabEvaluationValues::onQuantityBox_activated);
    connect(m_buttonQuantities, &QPushButton::clicked, this, &TabEvaluationValues::onButtonQuantities_clicked);
    connect(m_picker, &QuantityPicker::toggled, this, &TabEvaluationValues::onPicker_toggled);
    connect(m_chart, &TrendChart::shotClicked, this, &TabEvaluationValues::onChart_shotClicked);
    for (LimitField *field : {m_lowerLimit, m_upperLimit})
        connect(field, &LimitField::edited, this, &TabEvaluationValues::onLimits_edited);
}
