#include "plots/charts/boxwhiskerswidget.h"
#include "plots/common/decimalspinbox.h"
#include "plots/evaluation/common/scrolledplot.h"
#include "plots/evaluation/common/sensorselection.h"
#include "plots/evaluation/common/shottable.h"
#include "plots/evaluation/runtime/runtimetablemodel.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/oscilloscope/osziwidget.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double kLargestThreshold = 1e6;
constexpr int kSummaryHeight = 60; // pixels
constexpr int kWidestSpinBox = 220;
constexpr int kWidestTable = 900; // pixels that its columns can use; the box plots get the rest

} // namespace

QDoubleSpinBox *TabEvaluationRuntime::createThresholdSpinBox(const QString &name)
{
    auto *spinBox = new DecimalSpinBox(this);
    spinBox->setObjectName(name);
    spinBox->setDecimals(2);
    spinBox->setRange(-kLargestThreshold, kLargestThreshold);
    spinBox->setAlignment(Qt::AlignCenter);
    spinBox->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    spinBox->setMaximumWidth(kWidestSpinBox);
    return spinBox;
}

// The thresholds, and below them the box plots under their captions.
QLayout *TabEvaluationRuntime::createSummaries()
{
    m_labelStartValue = new QLabel(this);
    m_labelStopValue = new QLabel(this);
    m_spinBoxStartValue = createThresholdSpinBox(QStringLiteral("spinBoxStartValue"));
    m_spinBoxStopValue = createThresholdSpinBox(QStringLiteral("spinBoxStopValue"));
    auto *thresholds = new QGridLayout;
    thresholds->setHorizontalSpacing(10);
    thresholds->setColumnStretch(2, 1);
    thresholds->addWidget(m_labelStartValue, 0, 0);
    thresholds->addWidget(m_spinBoxStartValue, 0, 1);
    thresholds->addWidget(m_labelStopValue, 1, 0);
    thresholds->addWidget(m_spinBoxStopValue, 1, 1);

    const std::array<QColor, kNumSummaries> fills{Qt::green, Qt::blue, Qt::red};
    const std::array<QString, kNumSummaries> styles{QStringLiteral("color: green;"), QStringLiteral("color: blue;"),
                                                    QStringLiteral("color: red;")};
    const std::array<QString, kNumSummaries> names{QStringLiteral("boxStart"), QStringLiteral("boxDuration"),
                                                   QStringLiteral("boxStop")};
    auto *layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->addLayout(thresholds);
    for (size_t i = 0; i < fills.size(); ++i) {
        m_summaryCaptions[i] = new QLabel(this);
        m_summaryCaptions[i]->setStyleSheet(styles[i]);
        m_summaries[i] = new BoxWhiskersWidget(this);
        m_summaries[i]->setObjectName(names[i]);
        m_summaries[i]->setFixedHeight(kSummaryHeight);
        m_summaries[i]->setMargins(20, 0, 10, 20);
        m_summaries[i]->setFillColor(fills[i]);
        layout->addWidget(m_summaryCaptions[i]);
        layout->addWidget(m_summaries[i]);
    }
    layout->addStretch();
    return layout;
}

void TabEvaluationRuntime::createTable()
{
    m_tableModel = new RuntimeTableModel(this);
    m_table = newShotTable(this, QStringLiteral("tableRuntime"), m_tableModel);
    m_table->setMaximumWidth(kWidestTable);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->horizontalHeader()->setStretchLastSection(true);
}

// Measured are the titles, the first and the last shot, and the two rows behind them: with thousands of shots, to look
// at every one takes too long, and to look at those in sight leaves no room for the words of the last rows.
void TabEvaluationRuntime::fitColumns()
{
    constexpr int kCellFrame = 16; // pixels of a cell that its text cannot use
    const QString usualFigure = QStringLiteral("-8888.8");
    const QFontMetrics metrics = m_table->fontMetrics();
    const int shots = m_tableModel->numShots();
    for (int column = 0; column + 1 < RuntimeTableModel::NumColumns; ++column) {
        int text = metrics.horizontalAdvance(usualFigure);
        for (const int row : {0, shots - 1, shots, shots + 1})
            text = std::max(text, metrics.horizontalAdvance(m_tableModel->index(row, column).data().toString()));
        QHeaderView *header = m_table->horizontalHeader();
        header->resizeSection(column, std::max(header->sectionSizeHint(column), text + kCellFrame));
    }
}

void TabEvaluationRuntime::createPlot()
{
    m_osziWidget = new OsziWidget(this);
    m_osziWidget->setObjectName(QStringLiteral("osziWidget"));
    m_osziWidget->setMinimumHeight(140);
    m_osziWidget->setHorizontalLineCount(2);
    m_osziWidget->setVerticalMarkerCount(2);
    m_scrolledPlot = new ScrolledPlot(m_osziWidget, this);
}

void TabEvaluationRuntime::createLayout()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    m_sensors = new SensorSelection(this);
    layout->addWidget(m_sensors);
    createTable();
    createPlot();
    auto *middle = new QHBoxLayout;
    middle->addWidget(m_table, 3);
    middle->addLayout(createSummaries(), 1);
    layout->addLayout(middle, 1);
    layout->addWidget(m_scrolledPlot, 1);
}

void TabEvaluationRuntime::connectWidgets()
{
    connect(m_sensors, &SensorSelection::sensorChanged, this, &TabEvaluationRuntime::onSensorButtonToggled);
    for (QDoubleSpinBox *spinBox : {m_spinBoxStartValue, m_spinBoxStopValue})
        connect(spinBox, qOverload<double>(&QDoubleSpinBox::valueChanged), this,
                &TabEvaluationRuntime::onStartStopSpinBoxChanged);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &TabEvaluationRuntime::onCurrentRowChanged);
    connect(m_table, &QTableView::clicked, this, &TabEvaluationRuntime::onTable_clicked);
}

void TabEvaluationRuntime::retranslateUi()
{
    m_labelStartValue->setText(tr("Startschwelle"));
    m_labelStopValue->setText(tr("Stoppschwelle"));
    m_summaryCaptions[0]->setText(tr("Start [s]"));
    m_summaryCaptions[1]->setText(tr("Dauer [s]"));
    m_summaryCaptions[2]->setText(tr("Stop [s]"));
    for (std::size_t i = 0; i < m_summaries.size(); ++i)
        m_summaries[i]->setAccessibleName(m_summaryCaptions[i]->text());
    m_spinBoxStartValue->setAccessibleName(m_labelStartValue->text());
    m_spinBoxStopValue->setAccessibleName(m_labelStopValue->text());
    m_table->setAccessibleName(tr("Laufzeiten der Schüsse"));
    m_tableModel->retranslate();
    fitColumns();
    m_sensors->showSensors(model());
}
