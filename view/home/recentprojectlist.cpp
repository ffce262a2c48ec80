#include "view/home/recentprojectlist.h"

#include "app/theme.h"
#include "model/networkpath.h"
#include "view/common/actionicon.h"
#include "view/common/tabstyle.h"
#include "view/home/recentbutton.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTextDocument>

namespace {

constexpr int kRemoveSize = 40;

QString dateText(const QDateTime &changed)
{
    const QDate today = QDate::currentDate();
    const QString time = QLocale().toString(changed.time(), QLocale::ShortFormat);
    if (changed.date() == today)
        return RecentProjectList::tr("heute, %1").arg(time);
    if (changed.date() == today.addDays(-1))
        return RecentProjectList::tr("gestern, %1").arg(time);
    return QLocale().toString(changed.date(), RecentProjectList::tr("dd.MM.yyyy"));
}

} // namespace

RecentProjectList::RecentProjectList(QWidget *parent)
    : QWidget(parent)
{
    m_empty = new QLabel(this);
    m_empty->setObjectName(QStringLiteral("labelNoRecentProjects"));
    m_empty->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_empty);
    int number = 1;
    for (Row &row : m_rows) {
        createRow(row, number++);
        column->addWidget(row.line);
    }
    column->addStretch(1);
    refresh();
}

void RecentProjectList::createRow(Row &row, int number)
{
    row.line = new QWidget(this);
    row.open = new RecentButton(row.line);
    row.open->setObjectName(QStringLiteral("buttonRecentProject%1").arg(number));
    row.remove = new QPushButton(row.line);
    row.remove->setObjectName(QStringLiteral("buttonRemoveProject%1").arg(number));
    row.remove->setIcon(actionIcon(QStringLiteral("close.png"), theme::qColorDark));
    row.remove->setStyleSheet(QStringLiteral("QPushButton {background-color: transparent; min-width: 40px;}"
                                             "QPushButton:hover, QPushButton:focus {background-color: %1;}")
                                  .arg(theme::colorLight));
    row.remove->setFixedWidth(kRemoveSize);
    row.removeAction = new QAction(row.open);
    row.removeAction->setShortcut(Qt::Key_Delete);
    row.removeAction->setShortcutContext(Qt::WidgetShortcut);
    row.open->addAction(row.removeAction);
    row.open->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto *line = new QHBoxLayout(row.line);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(4);
    line->addWidget(row.open, 1);
    line->addWidget(row.remove);
    const auto remove = [this, number] { emit removeRequested(m_files.value(number - 1)); };
    connect(row.open, &RecentButton::clicked, this, [this, number] { emit openRequested(m_files.value(number - 1)); });
    connect(row.remove, &QPushButton::clicked, this, remove);
    connect(row.removeAction, &QAction::triggered, this, remove);
}

void RecentProjectList::setFiles(const QStringList &files)
{
    QString focused;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].open->hasFocus())
            focused = m_files.value(static_cast<int>(i));
    }
    m_files = files;
    refresh();
    const int row = focused.isEmpty() ? -1 : m_files.indexOf(focused);
    if (row >= 0 && row < static_cast<int>(m_rows.size())) // the focus stays with the project, not with its place
        m_rows[static_cast<std::size_t>(row)].open->setFocus();
}

void RecentProjectList::refresh()
{
    m_empty->setText(tr("1. Box einschalten und <b>Verbinden</b> drücken oder die <b>Demo</b> starten.<br>"
                        "2. <b>Start</b> in der Werkzeugleiste zeichnet eine Messung auf, <b>Stop</b> beendet sie.<br>"
                        "3. Kurven ansehen unter <b>Oszilloskop</b>, Messungen vergleichen unter <b>Auswertung</b>.<br>"
                        "4. Projekt speichern. Beim nächsten Mal steht es hier bereit."));
    m_empty->setVisible(m_files.isEmpty());
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const QString file = m_files.value(static_cast<int>(i));
        m_rows[i].line->setVisible(!file.isEmpty());
        if (!file.isEmpty())
            fill(m_rows[i], file);
    }
}

void RecentProjectList::fill(const Row &row, const QString &file) const
{
    const QFileInfo info(file);
    const bool remote = isOnNetwork(file);
    const bool isThere = remote || info.isFile();
    const QString state = remote ? tr("Netzlaufwerk") : isThere ? dateText(info.lastModified()) : tr("nicht gefunden");
    row.open->setEntry(info.completeBaseName(), QDir::toNativeSeparators(info.path()), state);
    row.open->setToolTip(Qt::convertFromPlainText(QDir::toNativeSeparators(file))); // may hold what looks like a tag
    row.open->setEnabled(isThere);
    row.remove->setVisible(remote || !isThere);
    const QString removal = tr("Aus der Liste entfernen");
    row.removeAction->setText(removal);
    row.remove->setToolTip(removal);
    row.remove->setAccessibleName(removal + QLatin1String(": ") + info.fileName());
}

void RecentProjectList::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

void RecentProjectList::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QWidget::changeEvent(event);
}
