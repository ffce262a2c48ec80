#pragma once

#include "model/projectdata.h"

#include <QWidget>

#include <memory>

/// The nine fields of the project's record.
class ProjectForm : public QWidget
{
    Q_OBJECT

public:
    explicit ProjectForm(QWidget *parent = nullptr);
    ~ProjectForm() override;

    /// Fills the fields; emits nothing. Numbers outside the range offered for typing are shown as they are.
    void setData(const ProjectData &data);
    /// Whether the names are above their fields instead of beside them.
    void setStacked(bool stacked);
    /// What was set, with what the user edited since. A field that was not edited keeps its value exactly, even
    /// where it shows fewer digits.
    [[nodiscard]] ProjectData data() const;

signals:
    /// The user changed a field; with every key, so that nothing typed is lost.
    void edited();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
