#pragma once

#include "controller/desk.h"
#include "model/project/imagestore.h"

#include <QObject>

/// Says once after a project was opened what the program does not understand of it, and what becomes of that.
class OpenNotice : public QObject
{
    Q_OBJECT

public:
    /// The desk's references must outlive the notice. A project that is open already is told of as soon as the event
    /// loop runs.
    explicit OpenNotice(const Desk &desk);

    /// Nothing for a project that is understood completely. A project whose shots lack the file beside it gets a line
    /// in the status bar.
    void show();

private:
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString origin() const;
    [[nodiscard]] QString keys() const;
    [[nodiscard]] QString pictures() const;
    [[nodiscard]] QString pictureList(PictureState state) const;
    [[nodiscard]] QString meta() const;
    [[nodiscard]] bool isHarmless() const;

    View &m_view;
    Model &m_model;
    Occupancy &m_occupancy;
};
