#pragma once

#include "kit/small/shadowframe.h"
#include "model/project/imagestore.h"

#include <QImage>
#include <QPixmap>
#include <QStringList>
#include <QTimer>

class QLabel;
class QMimeData;
class QPushButton;
class TilePicture;

/// One picture of the project on a card. Shows it and reports what the user wants; only setPicture() changes the
/// picture. A click, Space or Enter looks for a file while there is no picture, and enlarges it when there is one;
/// files and pictures can be dropped and pasted, the picture can be copied.
class ImageTile : public ShadowFrame
{
    Q_OBJECT

public:
    /// The number, from 1, is part of the names of object and children.
    explicit ImageTile(int number, QWidget *parent = nullptr);

    /// Emits nothing. The picture is null for one that the project has but that is not shown; `size` is that of the
    /// picture in the project.
    void setPicture(const QPixmap &picture, PictureState state, QSize size);
    [[nodiscard]] QPixmap picture() const;

signals:
    void chooseRequested();
    void enlargeRequested();
    void deleteRequested();
    void saveRequested();
    /// Files that look like pictures, not empty.
    void filesGiven(const QStringList &files);
    /// Not null.
    void imageGiven(const QImage &image);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    void retranslateUi();
    void showState();
    void copy() const;
    void paste();
    [[nodiscard]] bool take(const QMimeData *source);
    void refuse();

    [[nodiscard]] bool isFull() const { return m_state != PictureState::None; }
    [[nodiscard]] QString sizeText() const;
    [[nodiscard]] QString notice() const;

    int m_number;
    PictureState m_state = PictureState::None;
    QSize m_size; ///< of the picture in the project
    TilePicture *m_picture;
    QLabel *m_caption;
    QPushButton *m_choose;
    QPushButton *m_delete;
    QTimer m_refusalTimer;
};
