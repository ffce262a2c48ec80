#pragma once

#include <QObject>

class OsziRows;
class SlotPointer;

/// Moves the read-out with the keyboard: it starts in the middle of the curves in sight and goes sample by sample.
class KeyReadOut : public QObject
{
    Q_OBJECT

public:
    /// Listens to the keys in the plots. Rows and pointer must outlive it.
    KeyReadOut(const OsziRows &rows, const SlotPointer &pointer, QObject *parent = nullptr);

signals:
    /// The read-out is wanted at this column of the plots.
    void pointedAt(int x);
    /// The read-out is no longer wanted; only after a pointedAt().
    void ended();

private:
    void step(int samples);
    void end();

    const OsziRows &m_rows;
    const SlotPointer &m_pointer;
    int m_sample = -1; ///< counted from the first sample in sight; -1 while there is no read-out
};
