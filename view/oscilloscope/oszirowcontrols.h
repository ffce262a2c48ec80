#pragma once

#include "plots/common/decimalspinbox.h"

#include <QLabel>
#include <QSpinBox>

/// A spin box for values: no trailing zeros, as wide as its sample text, changed by the wheel only when it has the
/// focus (so that scrolling past it changes nothing), and silent while the user is still typing.
class OsziDoubleSpinBox : public DecimalSpinBox
{
    Q_OBJECT

public:
    explicit OsziDoubleSpinBox(const QString &sample, QWidget *parent = nullptr);

    [[nodiscard]] QString textFromValue(double value) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// Shows a value without emitting anything.
    void showValue(double value);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    QString m_sample;
};

/// The same for whole numbers.
class OsziSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit OsziSpinBox(const QString &sample, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    void showValue(int value);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    QString m_sample;
};

/// A label that ends in an ellipsis where its text does not fit; text() stays whole and is the tool tip then.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// Never narrower than minimumCharacters or its text, never asks for more than maximumCharacters.
    ElidedLabel(int minimumCharacters, int maximumCharacters, QWidget *parent = nullptr);

    /// Where the ellipsis stands; at the right unless this is set.
    void setElideMode(Qt::TextElideMode mode) { m_elideMode = mode; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool event(QEvent *event) override;

private:
    [[nodiscard]] int textWidth() const;
    [[nodiscard]] int widthOf(int characters) const;

    int m_minimumCharacters;
    int m_maximumCharacters;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;
};
