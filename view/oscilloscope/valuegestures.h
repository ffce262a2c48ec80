#pragma once

#include "view/oscilloscope/valueaxis.h"

#include <QObject>

class OsziRow;
class OsziRowInput;

/// Changes the value range of one row as wheel, drags and keys over its plot ask for. Does nothing while the row is
/// not editable.
class ValueGestures : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the row, listens to its input.
    ValueGestures(OsziRow *row, const OsziRowInput *input);

signals:
    /// A gesture has given the row another range.
    void rangeChanged();

private:
    void zoom(int y, int steps);
    void startDrag();
    void drag(int pixels);
    void step(int tenths);
    void fit();
    void setSpan(ValueSpan span);

    OsziRow *m_row;
    ValueSpan m_dragSpan; ///< as it was when the drag began
};
