#pragma once

#include "model/projectdata.h"

#include <QWidget>

#include <memory>

class Model;

/// The tab "Projekt": the project's descriptive record, its pictures, its comment, its phase names, and the deletion of
/// all data. Every change is reported as it is typed.
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
    // Of the five pictures, 0 to 4:
    void imageButtonClicked(int image); ///< the user wants to choose a file
    void imageLabelClicked(int image);  ///< the picture has been enlarged
    void imageDeleteClicked(int image);
    void imageSaveClicked(int image);                          ///< the user wants it in a file
    void imageFilesGiven(int image, const QStringList &files); ///< dropped or pasted, not empty
    void imageGiven(int image, const QImage &picture);         ///< likewise, not null

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
