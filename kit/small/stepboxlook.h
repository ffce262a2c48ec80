#pragma once

#include <QRect>
#include <QString>

class QFontMetrics;
class QPainter;

/// The parts of a step box that can be pressed.
enum class StepBoxPart { None, Previous, Number, Next };

/// The text that a step box shows for a number.
struct StepBoxText
{
    QString prefix;
    QString suffix;
    bool totalShown = false; ///< the maximum behind the number: "12 / 345"

    [[nodiscard]] QString of(int value, int maximum) const;
    /// Width in pixels of the wider of the texts for both ends of a range.
    [[nodiscard]] int widest(const QFontMetrics &metrics, int minimum, int maximum) const;
};

/// Where the parts of a step box are, and how they look. Two arrows enclose the number; in a
/// right-to-left layout everything is mirrored.
struct StepBoxLook
{
    /// How an arrow shows what the mouse does and whether a step that way is possible.
    enum class Arrow { Inactive, Resting, Hovered, Pressed };

    QRect area; ///< of the whole box
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int textWidth = 0; ///< pixels of the widest text

    /// Sizes of a box for the widest text.
    [[nodiscard]] static QSize usualSize(const QSize &text);
    [[nodiscard]] static QSize smallestSize(const QSize &text);

    [[nodiscard]] QRect areaOf(StepBoxPart part) const;
    [[nodiscard]] StepBoxPart partAt(const QPoint &position) const;

    void drawFrame(QPainter &painter) const;
    void drawArrow(QPainter &painter, StepBoxPart part, Arrow look) const;
    void drawFocus(QPainter &painter) const;
};
