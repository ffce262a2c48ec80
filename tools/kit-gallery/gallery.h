#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QGridLayout;

/// A page of the gallery: one kind of widget in its states, in rows of captioned samples.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    /// The state in which the last sample is shown in a picture; in the window it depends on the user.
    enum class State { Normal, Hovered, Pressed, Focused };

    /// The name is that of the class and, in lower case, of the picture file.
    explicit GalleryPage(const QString &name, QWidget *parent = nullptr);

    [[nodiscard]] QString name() const { return m_name; }

    /// Starts a row.
    void addRow(const QString &title);
    /// Adds a sample to the last row; the page owns it.
    void addSample(const QString &caption, QWidget *sample, State state = State::Normal);

    /// The page with every sample in its state. Processes events until all animations are over.
    [[nodiscard]] QPixmap picture();

private:
    struct Forced
    {
        QWidget *sample;
        State state;
    };

    void force(const Forced &forced) const;
    void replaceByPicture(QWidget *sample);

    QString m_name;
    QGridLayout *m_grid;
    int m_row = 0;
    int m_column = 0;
    QList<Forced> m_forced;
};

/// All pages, without a parent; the caller owns them.
[[nodiscard]] QList<GalleryPage *> createPages();
