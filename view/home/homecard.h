#pragma once

#include "kit/small/shadowframe.h"

#include <QVector>

class QBoxLayout;
class QLabel;
class QPushButton;

/// A card of the start page: a row that goes top to bottom in a narrow window, with tall buttons and headings that get
/// smaller in a tiny one.
class HomeCard : public ShadowFrame
{
    Q_OBJECT

public:
    static constexpr int kGap = 16;          ///< pixels between the parts of the page
    static constexpr int kButtonWidth = 270; ///< pixels

    explicit HomeCard(QWidget *parent = nullptr);

    void setNarrow(bool narrow);
    /// Smaller margins, buttons and headings; for the window as it is without settings.
    void setTiny(bool tiny);

    [[nodiscard]] QBoxLayout *row() const { return m_row; }

protected:
    [[nodiscard]] QPushButton *newButton(const char *name, const QString &icon);
    [[nodiscard]] QLabel *newHeading();

private:
    QBoxLayout *m_row;
    QVector<QPushButton *> m_buttons;
    QVector<QLabel *> m_headings;
};
