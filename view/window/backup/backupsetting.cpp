#include "view/window/backup/backupsetting.h"

#include "model/model.h"
#include "view/common/programsettings.h"

#include <QAction>
#include <QWidget>

namespace {

const QString kKeepBackup = QStringLiteral("keepBackup");

} // namespace

BackupSetting::BackupSetting(QWidget *owner, Model *model)
    : m_model(model)
    , m_action(new QAction(owner))
{
    m_action->setObjectName(QStringLiteral("actionKeepBackup"));
    m_action->setCheckable(true);
    m_action->setChecked(programSettings().value(kKeepBackup, true).toBool());
    apply(m_action->isChecked());
    connect(m_action, &QAction::toggled, this, [this](bool keeps) {
        programSettings().setValue(kKeepBackup, keeps);
        apply(keeps);
    });
}

void BackupSetting::apply(bool keepsBackup)
{
    SaveOptions options = m_model->saveOptions();
    options.keepsBackup = keepsBackup;
    m_model->setSaveOptions(options);
}

void BackupSetting::retranslate()
{
    m_action->setText(tr("&Vorige Fassung behalten (.vnt~)"));
    m_action->setStatusTip(
        tr("Lässt beim Speichern den vorigen Stand des Projekts als Sicherungskopie daneben liegen"));
}
