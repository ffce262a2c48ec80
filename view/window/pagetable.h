#pragma once

#include "view/window/pages.h"

#include <QCoreApplication>
#include <QVector>

class QKeySequence;
class QMainWindow;

/// The one list of the window's pages: what each is called, how it is made, and whether a connection opens it. Makes
/// the tabs from it, with their keys, and keeps their texts in the language in use.
class PageTable
{
    Q_DECLARE_TR_FUNCTIONS(PageTable)

public:
    /// Makes the window's central widget with all pages, which the window owns.
    explicit PageTable(QMainWindow *window);

    [[nodiscard]] const Pages &pages() const { return m_pages; }
    [[nodiscard]] int count() const;
    /// Numbers that do not exist are ignored.
    void setEnabled(int page, bool enabled);
    /// The numbers of the pages that a connection enables.
    [[nodiscard]] static QVector<int> openedByConnection();
    void retranslate() const;

    /// Ctrl+1 for page 0; none from the tenth page on, as there is no digit left.
    [[nodiscard]] static QKeySequence keyOf(int page);

private:
    void addPages();
    void addKeys(QMainWindow *window) const;

    Pages m_pages;
};
