#pragma once

#include "controller/desk.h"

#include <QObject>

class ProjectEdits;
class QImage;
class QPixmap;

/// The five pictures of a project: taken from files or from what is dropped and pasted, saved and deleted. Pictures
/// are counted from 0.
class ProjectPictures : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive the pictures.
    ProjectPictures(const Desk &desk, ProjectEdits &edits);

    void choose(int image);
    /// The first file is for the tile that it was given to, the others are for those that are free.
    void takeFiles(int image, const QStringList &files);
    void take(int image, const QImage &picture);
    void remove(int image);
    void save(int image);

private:
    [[nodiscard]] bool mayReplace(int image);
    [[nodiscard]] int takeIntoFreeTiles(const QStringList &files, int taken);
    [[nodiscard]] bool takeFile(int image, const QString &file);
    [[nodiscard]] bool set(int image, const QPixmap &picture);
    [[nodiscard]] QByteArray bytesOf(int image) const;
    [[nodiscard]] QString askFileToSave();

    View &m_view;
    Model &m_model;
    Occupancy &m_occupancy;
    ProjectEdits &m_edits;
};
