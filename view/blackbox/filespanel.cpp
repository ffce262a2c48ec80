#include "view/blackbox/filespanel.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/small/leftrightstepbox.h"
#include "view/blackbox/shotpreview.h"
#include "view/blackbox/ticktable.h"
#include "view/common/tabstyle.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int kSpacing = 20; // pixels
constexpr int kStepBoxWidth = 240;

} // namespace

FilesPanel::FilesPanel(BlackBoxDays *days, QWidget *parent)
    : TranslatedWidget(parent)
    , m_days(days)
    , m_files(days)
{
    createLayout();
    connectWidgets();
    retranslateUi();
}

void FilesPanel::createLayout()
{
    m_heading = new QLabel(this);
    tabstyle::makeHeading(m_heading);
    m_openFolder = new QtMaterialFlatButton(this);
    m_openFolder->setObjectName(QStringLiteral("buttonOpenFolder"));
    m_table = new TickTable(QStringLiteral("tableFiles"), &m_files, this);
    m_preview = new ShotPreview(this);
    m_preview->setObjectName(QStringLiteral("shotPreview"));
    m_step = new LeftRightStepBox(this);
    m_step->setObjectName(QStringLiteral("stepBoxFile"));
    m_step->setTotalShown(true);
    m_step->setRange(1, 0); // nothing to step through yet
    m_step->setMinimumWidth(kStepBoxWidth);
    m_import = new QtMaterialRaisedButton(this);
    m_import->setObjectName(QStringLiteral("buttonImport"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSpacing);
    auto *top = new QHBoxLayout;
    layout->addLayout(top);
    top->addWidget(m_heading, 1);
    top->addWidget(m_openFolder);
    layout->addWidget(m_table, 3);
    layout->addWidget(m_preview, 2);
    auto *foot = new QHBoxLayout;
    layout->addLayout(foot);
    foot->addWidget(m_step);
    foot->addWidget(m_import, 1);
}

void FilesPanel::connectWidgets()
{
    connect(m_openFolder, &QPushButton::clicked, this, &FilesPanel::openLocalFolderClicked);
    connect(m_import, &QPushButton::clicked, this, [this] { emit importClicked(m_days->selectedFiles()); });
    connect(m_days, &QAbstractItemModel::dataChanged, this, &FilesPanel::updateState);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) { showFile(current.row()); });
    connect(m_step, &LeftRightStepBox::valueChanged, this,
            [this](int number) { m_table->setCurrentIndex(m_files.index(number - 1, 0)); });
}

void FilesPanel::showDay(int row)
{
    m_files.setDay(row);
    if (m_files.rowCount() > 0)
        m_table->setCurrentIndex(m_files.index(0, 0));
    else
        showFile(-1);
    updateState();
}

void FilesPanel::showFile(int row)
{
    m_preview->setFile(m_files.path(row));
    const QSignalBlocker blocker(m_step); // it follows the table here
    m_step->setRange(1, m_files.rowCount());
    m_step->setValue(row + 1);
}

void FilesPanel::setIdle(bool idle)
{
    m_idle = idle;
    updateState();
}

void FilesPanel::updateState()
{
    const int wanted = m_days->selectedFiles().size();
    m_openFolder->setEnabled(m_idle);
    m_import->setEnabled(m_idle && wanted > 0);
    m_import->setText(wanted > 0 ? tr("&Importieren (%1)").arg(wanted) : tr("&Importieren"));
    updateHeading();
}

void FilesPanel::updateHeading()
{
    const QDate date = m_days->days().value(m_files.day()).date;
    if (m_files.day() < 0)
        m_heading->setText(tr("Dateien"));
    else if (date.isValid())
        m_heading->setText(tr("Dateien vom %1").arg(date.toString(QStringLiteral("dd.MM.yyyy"))));
    else
        m_heading->setText(tr("Lokale Dateien"));
}

void FilesPanel::retranslateUi()
{
    m_openFolder->setText(tr("&Ordner öffnen..."));
    m_openFolder->setToolTip(tr("Dateien der Box aus einem Ordner dieses Rechners nehmen"));
    m_import->setToolTip(tr("Die ausgewählten Dateien als Messungen in das Projekt übernehmen"));
    m_table->setAccessibleName(tr("Dateien des Tages"));
    m_preview->setAccessibleName(tr("Vorschau der Messung"));
    m_step->setAccessibleName(tr("Datei in der Vorschau"));
    m_step->setToolTip(tr("Vorige und nächste Datei des Tages ansehen"));
    m_files.retranslate();
    m_preview->update(); // it composes its caption while painting
    updateState();
}
