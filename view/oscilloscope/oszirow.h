#pragma once

#include "view/oscilloscope/valueaxis.h"

#include <QColor>
#include <QWidget>

class ElidedLabel;
class OsziDoubleSpinBox;
class OsziWidget;
class QCheckBox;
class QLabel;

/// One row of the oscilloscope tab: the plot of a sensor position and the parameters beside it. The boxes always show
/// what the plot has: a value that the plot refuses is taken back.
class OsziRow : public QWidget
{
    Q_OBJECT

public:
    /// Position 0 to 4; the object names count from 1.
    explicit OsziRow(int position, QWidget *parent = nullptr);

    [[nodiscard]] OsziWidget *plot() const { return m_plot; }
    [[nodiscard]] OsziDoubleSpinBox *maxBox() const { return m_max; }
    [[nodiscard]] OsziDoubleSpinBox *minBox() const { return m_min; }
    [[nodiscard]] OsziDoubleSpinBox *offsetBox() const { return m_offset; }

    /// The value range shown. setSpan() emits nothing and widens the limits of the boxes if necessary; it returns false
    /// and changes nothing if the ends are not finite, not in order or too close for the plot.
    [[nodiscard]] ValueSpan span() const;
    bool setSpan(ValueSpan span);
    [[nodiscard]] ValueSpan limits() const;
    /// Limits of the range boxes; the range shown is clamped to them. Emits nothing; returns false and changes nothing
    /// if the limits are not finite, not in order or too close.
    bool setLimits(ValueSpan limits);
    /// The value added to all curves of the row; emits nothing.
    void showOffset(double offset);
    /// Name and unit as the row's title, in the colour given. "Sensor N" is shown for an empty name.
    void setTitle(const QString &name, const QString &unit, const QColor &color);
    /// "Sensor N" in the language in use.
    [[nodiscard]] QString defaultName() const;
    /// Open: the parameters can be changed.
    void setEditable(bool editable);
    [[nodiscard]] bool isEditable() const { return m_editable; }

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createBoxes(QWidget *params);
    void layOut(QWidget *params);
    void connectBoxes();
    void applyMaximum(double value);
    void applyMinimum(double value);
    void showSpan();
    void updateEnabled();
    void updateTitle();
    void retranslateUi();

    int m_position;
    bool m_editable = true;
    QString m_name;
    QString m_unit;
    QColor m_color = Qt::black;
    OsziWidget *m_plot = nullptr;
    ElidedLabel *m_title = nullptr;
    QLabel *m_rangeCaption = nullptr;
    QLabel *m_autoCaption = nullptr;
    QLabel *m_gridCaption = nullptr;
    QLabel *m_offsetCaption = nullptr;
    OsziDoubleSpinBox *m_max = nullptr;
    OsziDoubleSpinBox *m_min = nullptr;
    QCheckBox *m_gridAuto = nullptr;
    OsziDoubleSpinBox *m_grid = nullptr;
    OsziDoubleSpinBox *m_offset = nullptr;
};
