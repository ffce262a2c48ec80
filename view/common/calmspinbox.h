#pragma once

#include <QAbstractSpinBox>
#include <QFontMetrics>
#include <QSignalBlocker>
#include <QString>
#include <QWheelEvent>

#include <utility>

/// A spin box, of whole or decimal numbers, as wide as a sample text and the step buttons. It is changed by the wheel
/// only while it has the focus, so that scrolling past it changes nothing, and silent while the user is still typing.
template <typename Box>
class CalmSpinBox : public Box
{
public:
    using Value = decltype(std::declval<const Box &>().value());

    explicit CalmSpinBox(const QString &sample, QWidget *parent)
        : Box(parent)
        , m_sample(sample)
    {
        this->setKeyboardTracking(false);
        this->setAlignment(Qt::AlignCenter);
        this->setFocusPolicy(Qt::StrongFocus);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        return {this->fontMetrics().horizontalAdvance(m_sample) + kSurround, Box::sizeHint().height()};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// Shows a value without emitting anything.
    void showValue(Value value)
    {
        const QSignalBlocker blocker(this);
        this->setValue(value);
    }

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (this->hasFocus())
            Box::wheelEvent(event);
        else
            event->ignore();
    }

private:
    static constexpr int kSurround = 2 * 30 + 12; ///< pixels, for the two step buttons at the sides and the frame

    QString m_sample;
};
