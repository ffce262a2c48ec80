#pragma once

#include <QDialog>
#include <QPixmap>

/// A picture as large as the window that shows it. Escape, Enter, Space and a click close it.
class ImagePreview : public QDialog
{
    Q_OBJECT

public:
    /// The picture must not be null. At first the window is as large as the screen allows in the picture's shape.
    ImagePreview(const QString &title, const QPixmap &picture, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    QPixmap m_scaled; ///< for the size and the screen it was last painted on
};
