#pragma once

#include <QWidget>

#include <optional>

class QCheckBox;
class QDoubleSpinBox;

/// A number that can be switched off: a toggle and a spin box.
class LimitField : public QWidget
{
    Q_OBJECT

public:
    explicit LimitField(QWidget *parent = nullptr);

    /// Emits nothing. If the number is the same, what the user is typing is kept.
    void setLimit(const std::optional<double> &limit);
    /// std::nullopt while it is switched off.
    [[nodiscard]] std::optional<double> limit() const;
    void setTitle(const QString &title);
    void setUnit(const QString &unit);
    /// What the spin box shows when it is switched on for the first time; it stays off.
    void setSuggestion(double value);

signals:
    /// The user changed the number or switched it.
    void edited();

private:
    QCheckBox *m_switch = nullptr;
    QDoubleSpinBox *m_spinBox = nullptr;
};
