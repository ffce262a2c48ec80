#pragma once

#include <QLabel>

/// A label that ends in an ellipsis where its text does not fit; text() stays whole and is the tool tip then.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// Never narrower than minimumCharacters or its text, never asks for more than maximumCharacters.
    ElidedLabel(int minimumCharacters, int maximumCharacters, QWidget *parent = nullptr);

    /// Where the ellipsis is put; on the right unless this is set.
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
