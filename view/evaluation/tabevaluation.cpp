#include "view/evaluation/tabevaluation.h"

#include "app/theme.h"
#include "model/edit/editscope.h"
#include "model/model.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/dashboard/dashboard.h"
#include "plots/evaluation/overlay/tabevaluationoverlay.h"
#include "plots/evaluation/runtime/tabevaluationruntime.h"
#include "plots/evaluation/values/tabevaluationvalues.h"
#include "view/common/logging.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>

#include <algorithm>

namespace {

QString pageButtonSheet()
{
    return QStringLiteral("QPushButton {background-color: %1; color: %2; border: 0px; border-radius: 0px;"
                          " border-bottom: 4px solid %3; font: bold 16px; min-height: 40px; padding: 0px 6px;}"
                          "QPushButton:checked {background-color: %4; color: %5; border-bottom-color: %5;}"
                          "QPushButton:hover, QPushButton:focus {color: %5; border-bottom-color: %5;}"
                          "QPushButton:focus {border: 1px dotted %2; border-bottom: 4px solid %5;}")
        .arg(theme::colorLight, theme::colorDark, theme::colorMedium, theme::colorBackground, theme::colorPrimary);
}

} // namespace

TabEvaluation::TabEvaluation(QWidget *parent)
    : QWidget(parent)
    , m_stack(new QStackedWidget(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    createButtons();
    layout->addWidget(m_stack, 1);
    createPages();
    retranslateUi();
}

void TabEvaluation::createButtons()
{
    auto *group = new QButtonGroup(this);
    auto *row = new QHBoxLayout;
    row->setSpacing(2);
    for (int page = 0; page < kNumPages; ++page) {
        auto *button = new QPushButton(this);
        button->setObjectName(QStringLiteral("pageButton%1").arg(page));
        button->setStyleSheet(pageButtonSheet());
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->hide(); // until its page is added
        group->addButton(button, page);
        row->addWidget(button);
        m_buttons[static_cast<std::size_t>(page)] = button;
        connect(button, &QAbstractButton::clicked, this, [this, page] { showPage(static_cast<Page>(page)); });
    }
    static_cast<QVBoxLayout *>(layout())->addLayout(row);
}

void TabEvaluation::createPages()
{
    m_data = new EvaluationData(this);
    m_dashboard = new Dashboard(m_stack);
    m_dashboard->setData(m_data);
    addPage(Page::Dashboard, m_dashboard);
    m_valuesPage = new TabEvaluationValues(m_stack);
    m_valuesPage->setData(m_data);
    addPage(Page::Values, m_valuesPage);
    connect(m_dashboard, &Dashboard::valuesWanted, this, [this](int sensor) {
        m_valuesPage->setCurrentSensor(sensor);
        showPage(Page::Values);
    });
    connect(m_dashboard, &Dashboard::runtimesWanted, this, [this] { showPage(Page::Runtime); });
    m_runtimePage = new TabEvaluationRuntime(m_stack);
    connect(m_runtimePage, &TabEvaluationRuntime::thresholdsChanged, this,
            &TabEvaluation::onRuntimePage_thresholdsChanged);
    addPage(Page::Runtime, m_runtimePage);
    m_overlayPage = new TabEvaluationOverlay(m_stack);
    addPage(Page::Overlay, m_overlayPage);
    showPage(Page::Dashboard);
}

void TabEvaluation::addPage(Page page, QWidget *widget)
{
    m_pages[static_cast<std::size_t>(page)] = widget;
    m_stack->addWidget(widget);
    button(page)->show();
}

void TabEvaluation::setModel(Model *model)
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!model)
        return;
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    connect(model, &Model::projectChanged, this, &TabEvaluation::onModel_projectChanged);
    m_data->setModel(model);
    m_runtimePage->setModel(model);
    m_overlayPage->setModel(model);
    onModel_projectChanged();
}

TabEvaluation::Page TabEvaluation::currentPage() const
{
    const auto current = std::find(m_pages.begin(), m_pages.end(), m_stack->currentWidget());
    return static_cast<Page>(std::distance(m_pages.begin(), current));
}

void TabEvaluation::showPage(Page page)
{
    qCDebug(lcView) << Q_FUNC_INFO << static_cast<int>(page);
    QWidget *widget = m_pages[static_cast<std::size_t>(page)];
    if (!widget)
        return;
    button(page)->setChecked(true);
    m_stack->setCurrentWidget(widget);
}

// --- Thresholds ------------------------------------------------------------------------------------------------

void TabEvaluation::onModel_projectChanged()
{
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        const SensorMeta &meta = m_model->projectMeta().sensors[static_cast<std::size_t>(sensor)];
        // Only if different: the page searches all shots again for new ones.
        if (meta.startThreshold != m_runtimePage->startThreshold(sensor)
            || meta.stopThreshold != m_runtimePage->stopThreshold(sensor))
            m_runtimePage->setThresholds(sensor, meta.startThreshold, meta.stopThreshold);
    }
}

void TabEvaluation::onRuntimePage_thresholdsChanged()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    if (!m_model)
        return;
    const EditScope edit(
        m_model, [] { return tr("Schwellen der Laufzeit"); }, QStringLiteral("thresholds"));
    ProjectMeta meta = m_model->projectMeta();
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        meta.sensors[static_cast<std::size_t>(sensor)].startThreshold = m_runtimePage->startThreshold(sensor);
        meta.sensors[static_cast<std::size_t>(sensor)].stopThreshold = m_runtimePage->stopThreshold(sensor);
    }
    m_model->setProjectMeta(meta);
    m_model->setProjectModifiedFlag(true);
}

// --- Texts -----------------------------------------------------------------------------------------------------

void TabEvaluation::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabEvaluation::retranslateUi()
{
    button(Page::Dashboard)->setText(tr("Übersicht"));
    button(Page::Values)->setText(tr("Auswertung 1/3: Werte"));
    button(Page::Runtime)->setText(tr("Auswertung 2/3: Laufzeit"));
    button(Page::Overlay)->setText(tr("Auswertung 3/3: Überlagerung"));
}
