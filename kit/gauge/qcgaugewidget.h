#pragma once

#include "kit/gauge/qcitemstack.h"

#include <QWidget>

#include <memory>
#include <utility>

/// A round gauge that is put together from parts, see QcItem. It knows what it shows - a value, a range, bands, texts -
/// and its parts know how. Parts that do not move are painted once and kept as pictures until the size, the screen, the
/// theme, the font, the language or the parts change; a new value repaints only the area of what it moves.
///
/// Screen readers see a dial with its value. Without damping no timer runs.
class QcGaugeWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue)

public:
    /// Without parts; qcgauge::createSensorGauge() makes a complete one.
    explicit QcGaugeWidget(QWidget *parent = nullptr);
    ~QcGaugeWidget() override;
    /// Puts a new part on top, made from the arguments; short for parts().append().
    template <typename Item, typename... Arguments>
    Item *append(Arguments &&...arguments)
    {
        return parts().append<Item>(std::forward<Arguments>(arguments)...);
    }
    /// The parts, to be rearranged; the gauge owns them.
    [[nodiscard]] QcItemStack &parts();

    // --- What it shows ---
    /// From the first to the last mark, also reversed. Finite, otherwise logged and ignored.
    void setRange(double from, double to);
    [[nodiscard]] double minimum() const; ///< the smaller end of the range
    [[nodiscard]] double maximum() const;
    /// Bands with an invalid colour or with ends that are not finite are left out.
    void setBands(const QVector<QcBand> &bands);
    void setTitle(const QString &title);
    [[nodiscard]] QString title() const;
    void setUnit(const QString &unit);
    /// Of all needles that point at the value. Invalid: the theme's.
    void setNeedleColor(const QColor &color);
    /// Of the value as a number; clamped to 0 to 15.
    void setDecimals(int decimals);
    /// May be outside the range: the needle then stays just beyond the end. A value that is not finite clears it.
    void setValue(double value);
    void clearValue();
    [[nodiscard]] bool hasValue() const;
    [[nodiscard]] double value() const; ///< 0 without one
    /// The lowest and the highest value since some moment, in either order. What is not finite clears them.
    void setHeld(double minimum, double maximum);
    void clearHeld();
    /// Whether the value is too old to be trusted: everything looks pale, as it does while the widget is disabled.
    void setStale(bool stale);
    [[nodiscard]] bool isStale() const;
    /// The time in ms in which the needle covers about two thirds of the way to a new value; 0, the default: none.
    void setDamping(int milliseconds);
    /// True while the needle is on its way; a timer runs only then.
    [[nodiscard]] bool isOnTheWay() const;

    /// Value and unit, and whether they are out of date, in words.
    [[nodiscard]] QString spokenValue() const;
    /// What the part at this index sees when it is painted.
    [[nodiscard]] QcCanvas canvas(int index) const;
    [[nodiscard]] const QcReading &reading() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return width; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    /// Has all parts repainted.
    void renew();
    template <typename T>
    void assign(T &property, const T &value);
    void prepare() const;
    void setReading(const QcReading &reading);
    void moveNeedle();

    struct Private;
    std::unique_ptr<Private> d;
};
