#pragma once

#include "model/projectdata.h"

#include <QWidget>

#include <memory>

class Model;

/// The tab "Projekt": the project's descriptive record, its comment, its phase names, and the deletion of all data.
class TabProject : public QWidget
{
    Q_OBJECT

public:
    explicit TabProject(QWidget *parent = nullptr);
    ~TabProject() override;

    void setModel(Model *model);
    /// What the fields hold.
    [[nodiscard]] ProjectData projectData() const;
    [[nodiscard]] QString comment() const;
    /// Fields from the model; emits nothing.
    void updateFromModel();

signals:
    void projectDataChanged();
    void commentChanged();
    void clearDataClicked();
    void phaseEditChanged(int phase, const QString &name);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
