#pragma once

#include "model/recentlist.h"

#include <QWidget>

#include <array>

class QLabel;
class QPushButton;
class RecentButton;

/// The projects that were used last, each with its folder and the date of its last change. A file that is no longer
/// there is grey and can be taken off the list; whether one on a network drive is there is not asked, as the answer
/// may take long. Without any project it tells how to begin.
class RecentProjectList : public QWidget
{
    Q_OBJECT

public:
    explicit RecentProjectList(QWidget *parent = nullptr);

    /// Absolute paths, the newest first; at most recentlist::kMaxRecent are shown.
    void setFiles(const QStringList &files);
    [[nodiscard]] bool isEmpty() const { return m_files.isEmpty(); }
    /// Looks at the files again.
    void refresh();

signals:
    void openRequested(const QString &file);
    void removeRequested(const QString &file);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Row
    {
        QWidget *line = nullptr;
        RecentButton *open = nullptr;
        QPushButton *remove = nullptr;
        QAction *removeAction = nullptr;
    };

    void createRow(Row &row, int number);
    void fill(const Row &row, const QString &file) const;

    QStringList m_files;
    QLabel *m_empty = nullptr;
    std::array<Row, recentlist::kMaxRecent> m_rows;
};
