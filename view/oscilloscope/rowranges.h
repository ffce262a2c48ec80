#pragma once

#include "view/oscilloscope/valueaxis.h"

#include <QCoreApplication>
#include <QPointer>

#include <memory>

class EditScope;
class Model;
class OsziRow;
class OsziRows;
class QObject;

/// Keeps the value ranges of the rows and those in the model's view data the same.
class RowRanges
{
    Q_DECLARE_TR_FUNCTIONS(RowRanges)

public:
    /// The rows must outlive it.
    explicit RowRanges(OsziRows &rows);

    /// Not owned, may go first; nullptr for none. Nothing is shown before showModel().
    void setModel(Model *model);
    /// Shows the ranges of the model.
    void showModel();
    /// The limits of a row's range boxes / the range shown; ignored for a position outside 0 to 4 and for ends that
    /// are not in order.
    void setLimits(int position, ValueSpan limits);
    void setSpan(int position, ValueSpan span);
    /// Stores what a row shows.
    void store(int position);
    /// Stores the end that was changed in one of the boxes; false (and logged) for any other sender.
    bool takeMaximum(const QObject *box);
    bool takeMinimum(const QObject *box);

private:
    /// One step for undo while somebody types.
    [[nodiscard]] std::unique_ptr<EditScope> editOf(int position) const;

    OsziRows &m_rows;
    QPointer<Model> m_model;
};
