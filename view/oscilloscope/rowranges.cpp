#include "view/oscilloscope/rowranges.h"

#include "model/edit/editscope.h"
#include "model/model.h"
#include "plots/oscilloscope/osziwidget.h"
#include "view/common/logging.h"
#include "view/oscilloscope/oszidoublespinbox.h"
#include "view/oscilloscope/oszirow.h"
#include "view/oscilloscope/oszirows.h"

namespace {

using BoxOfRow = OsziDoubleSpinBox *(OsziRow::*)() const;

/// The row whose box this is; -1 and a log line for anything else.
int positionOf(const OsziRows &rows, const QObject *box, BoxOfRow boxOfRow)
{
    for (int position = 0; position < kNumSensors; ++position) {
        if (box && (rows.row(position)->*boxOfRow)() == box)
            return position;
    }
    qCDebug(lcView) << " wrong sensor index!";
    return -1;
}

} // namespace

RowRanges::RowRanges(OsziRows &rows)
    : m_rows(rows)
{}

void RowRanges::setModel(Model *model)
{
    m_model = model;
}

void RowRanges::showModel()
{
    for (int position = 0; m_model && position < kNumSensors; ++position) {
        // A range that cannot be shown is replaced by what is shown, so that the next save writes what the user saw.
        if (!m_rows.row(position)->setSpan({m_model->osziMinimum(position), m_model->osziMaximum(position)}))
            store(position);
    }
}

void RowRanges::setLimits(int position, ValueSpan limits)
{
    OsziRow *row = m_rows.row(position);
    if (row && row->setLimits(limits))
        store(position);
}

void RowRanges::setSpan(int position, ValueSpan span)
{
    OsziRow *row = m_rows.row(position);
    if (row && row->setSpan(span))
        store(position);
}

void RowRanges::store(int position)
{
    if (!m_model)
        return;
    const ValueSpan span = m_rows.row(position)->span();
    m_model->setOsziMinimum(position, span.minimum);
    m_model->setOsziMaximum(position, span.maximum);
}

bool RowRanges::takeMaximum(const QObject *box)
{
    const int position = positionOf(m_rows, box, &OsziRow::maxBox);
    if (position < 0 || !m_model)
        return false;
    const std::unique_ptr<EditScope> edit = editOf(position);
    // The plot may have refused what was typed, so it is asked for the value.
    m_model->setOsziMaximum(position, m_rows.plot(position)->maxValue());
    return true;
}

bool RowRanges::takeMinimum(const QObject *box)
{
    const int position = positionOf(m_rows, box, &OsziRow::minBox);
    if (position < 0 || !m_model)
        return false;
    const std::unique_ptr<EditScope> edit = editOf(position);
    m_model->setOsziMinimum(position, m_rows.plot(position)->minValue());
    return true;
}

std::unique_ptr<EditScope> RowRanges::editOf(int position) const
{
    const QString name = shownSensorName(m_model->sensorDescription(), position);
    return std::make_unique<EditScope>(
        m_model, [name] { return tr("Bereich von %1").arg(name); }, QStringLiteral("range.%1").arg(position));
}
