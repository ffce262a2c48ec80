#pragma once

#include "kit/small/clickablelabel.h"

#include <QPixmap>

/// The face of an ImageTile: the picture as large as it fits, or a place to put one.
class TilePicture : public ClickableLabel
{
    Q_OBJECT

public:
    enum class Drop { None, Welcome, Refused };

    explicit TilePicture(QWidget *parent = nullptr);

    void setPicture(const QPixmap &picture);
    [[nodiscard]] const QPixmap &picture() const { return m_picture; }
    /// How the tile reacts to what is dragged over it or was dropped on it.
    void setDrop(Drop drop);
    /// The texts without a picture, while a picture is dragged over the tile, and after something else was dropped.
    void setTexts(const QString &invitation, const QString &welcome, const QString &refusal);

    /// What is said of a picture that cannot be shown; empty for none.
    void setNotice(const QString &notice);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintPicture(QPainter &painter);
    void paintPlace(QPainter &painter, const QColor &color, const QString &iconFile, const QString &text) const;

    QPixmap m_picture;
    QPixmap m_scaled; ///< for the size and the screen it was last painted on
    Drop m_drop = Drop::None;
    QString m_invitation;
    QString m_welcome;
    QString m_refusal;
    QString m_notice;
};
