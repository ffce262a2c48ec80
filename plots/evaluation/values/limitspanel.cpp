#include "plots/evaluation/values/limitspanel.h"

#include "app/theme.h"
#include "plots/charts/statistics.h"
#include "plots/evaluation/common/evaluationdata.h"
#include "plots/evaluation/common/limitfield.h"

#include <QHash>
#include <QLabel>
#include <QVBoxLayout>

namespace {

// Where a limit that is switched on for the first time begins.
constexpr double kSuggestedSigmas = 4.0;

QString gradeSheet(CapabilityGrade grade)
{
    static const QHash<int, QString> colors{{int(CapabilityGrade::Good), QStringLiteral("#2E7D32")},
                                            {int(CapabilityGrade::Fair), QStringLiteral("#8A6D00")},
                                            {int(CapabilityGrade::Poor), QStringLiteral("#B3261E")}};
    return QStringLiteral("QLabel {font-weight: bold; color: %1;}").arg(colors.value(int(grade), theme::colorDark));
}

// To as many digits as figures have.
double rounded(double value)
{
    return QString::number(value, 'g', 6).toDouble();
}

template <typename Widget>
Widget *newPart(QWidget *parent, const char *name)
{
    auto *widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace

LimitsPanel::LimitsPanel(QWidget *parent)
    : TranslatedWidget(parent)
    , m_lower(newPart<LimitField>(this, "lowerLimit"))
    , m_upper(newPart<LimitField>(this, "upperLimit"))
    , m_cp(newPart<QLabel>(this, "labelCp"))
    , m_cpk(newPart<QLabel>(this, "labelCpk"))
    , m_outside(newPart<QLabel>(this, "labelOutside"))
{
    for (QLabel *label : {m_cp, m_cpk, m_outside})
        label->setTextFormat(Qt::PlainText);
    auto *figures = new QHBoxLayout;
    figures->setSpacing(18);
    figures->addWidget(m_cp);
    figures->addWidget(m_cpk);
    figures->addWidget(m_outside, 1, Qt::AlignRight);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_lower);
    layout->addWidget(m_upper);
    layout->addLayout(figures);
    retranslateUi();
    for (LimitField *field : {m_lower, m_upper})
        connect(field, &LimitField::edited, this, &LimitsPanel::edited);
}

ToleranceLimits LimitsPanel::limits() const
{
    return {m_lower->limit(), m_upper->limit()};
}

void LimitsPanel::set(const QVector<double> &values, const ToleranceLimits &limits, const QString &unit)
{
    for (LimitField *field : {m_lower, m_upper})
        field->setUnit(unit);
    m_lower->setLimit(limits.lower);
    m_upper->setLimit(limits.upper);
    suggestLimits(values);
    showCapability(values, limits);
    showOutside(values, limits);
}

void LimitsPanel::suggestLimits(const QVector<double> &values)
{
    const statistics::Moments moments = statistics::moments(values);
    m_lower->setSuggestion(rounded(moments.mean - kSuggestedSigmas * moments.sigma));
    m_upper->setSuggestion(rounded(moments.mean + kSuggestedSigmas * moments.sigma));
}

void LimitsPanel::showCapability(const QVector<double> &values, const ToleranceLimits &limits)
{
    const Capability figures = capability(values, limits);
    m_cp->setText(tr("Cp %1").arg(capabilityText(figures.cp)));
    m_cpk->setText(tr("Cpk %1").arg(capabilityText(figures.cpk)));
    m_cpk->setStyleSheet(gradeSheet(gradeOf(figures)));
}

void LimitsPanel::showOutside(const QVector<double> &values, const ToleranceLimits &limits)
{
    const int outside = countOutside(values, limits);
    if (limits.isInverted())
        m_outside->setText(limits.lower == limits.upper ? tr("Grenzen sind gleich!")
                                                        : tr("Untere Grenze über oberer!"));
    else if (limits.isEmpty())
        m_outside->setText(tr("Keine Grenzen"));
    else
        m_outside->setText(tr("Außerhalb: %1 von %2").arg(outside).arg(values.size()));
    m_outside->setStyleSheet(
        gradeSheet(outside > 0 || limits.isInverted() ? CapabilityGrade::Poor : CapabilityGrade::Unknown));
}

// Texts with figures are set again by the page's refresh, which follows.
void LimitsPanel::retranslateUi()
{
    m_lower->setTitle(tr("&Untere Grenze"));
    m_upper->setTitle(tr("&Obere Grenze"));
    const QString sigma = tr("Mit der Standardabweichung der Grundgesamtheit (geteilt durch n)");
    m_cp->setToolTip(tr("(Obere - untere Grenze) / 6 Sigma. %1").arg(sigma));
    m_cpk->setToolTip(tr("Abstand des Mittelwerts von der näheren Grenze / 3 Sigma. %1").arg(sigma));
}
