#pragma once

#include <QWidget>

#include <array>

class ImageTile;
class Model;

/// The five pictures of the project, side by side; a signal's image is its index, 0 to 4.
class ProjectImages : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectImages(QWidget *parent = nullptr);

    /// Pictures from the model; emits nothing.
    void showFrom(const Model &model);
    /// Whether the pictures are below each other.
    void setNarrow(bool narrow);

signals:
    void chooseClicked(int image);
    void deleteClicked(int image);
    void saveClicked(int image);
    void enlarged(int image);
    void filesGiven(int image, const QStringList &files);
    void imageGiven(int image, const QImage &picture);

private:
    void addTile(int image);
    void placeTiles();
    void enlarge(int image);

    std::array<ImageTile *, 5> m_tiles{};
    bool m_narrow = false;
};
