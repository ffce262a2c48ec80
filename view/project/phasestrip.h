#pragma once

#include "model/verticalmarkers.h"

#include <QBoxLayout>
#include <QWidget>

#include <array>

class Model;
class QLabel;
class QLineEdit;

/// The five phases of a shot in their order, each in the colour of its marker in the oscilloscope, with a name that can
/// be edited in place and the times between which it lies.
class PhaseStrip : public QWidget
{
    Q_OBJECT

public:
    explicit PhaseStrip(QWidget *parent = nullptr);

    /// Names and times from the model; emits nothing. A name that is being edited stays untouched where it is the same.
    void showFrom(const Model &model);
    /// Left to right at first; top to bottom where there is little room.
    void setDirection(QBoxLayout::Direction direction);

signals:
    /// With every key, so that nothing typed is lost. Phase 0 to 4.
    void nameEdited(int phase, const QString &name);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void addPhase(int phase);
    void paintPhase(QPainter &painter, int phase) const;
    void showTimes();

    static constexpr int kNumPhases = kNumCyclePhases;
    QBoxLayout *m_row = nullptr;
    std::array<QBoxLayout *, kNumPhases> m_cells{}; ///< within the area of a phase
    std::array<QLineEdit *, kNumPhases> m_names{};
    std::array<QLabel *, kNumPhases> m_numbers{};
    std::array<QLabel *, kNumPhases> m_times{};
    std::array<double, kNumPhases> m_ends{}; ///< seconds; that of the last one is not used
};
