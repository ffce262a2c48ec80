#pragma once

#include <QFont>
#include <QMargins>
#include <QRect>
#include <QString>

/// Where the parts of a material text field are, from the top: label, text, line, support (a helper text or an error,
/// and a counter). Pixels, in the field's coordinates.
struct QtMaterialTextFieldPlaces
{
    static constexpr int kInset = 4; ///< from the field's edge to its texts

    QSize field;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    int textHeight = 0; ///< of a line in the field's font
    QFont smallFont;    ///< of a floating label and of the support
    QString counter;    ///< empty for none
    bool hasLabel = false;
    bool hasSupport = false;
    bool hasCross = false; ///< there is room for one at the end of the text

    /// The font of label and support for the field's font.
    [[nodiscard]] static QFont smaller(const QFont &font);
    /// The size of smaller(), relative to the font.
    static constexpr qreal kSmall = 0.8;

    [[nodiscard]] int supportRoom() const;
    /// For QLineEdit::setTextMargins().
    [[nodiscard]] QMargins textMargins() const;
    /// The least height of a field with these parts.
    [[nodiscard]] int height() const;
    /// The middle of the line.
    [[nodiscard]] qreal lineY() const;
    [[nodiscard]] QRect supportRect() const;
    /// The support without the counter.
    [[nodiscard]] QRect supportTextRect() const;
    /// Where the cross is to be clicked.
    [[nodiscard]] QRect crossRect() const;

private:
    [[nodiscard]] int labelRoom() const;
    [[nodiscard]] int innerHeight() const;
};
