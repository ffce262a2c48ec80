#pragma once

#include <QWidget>

#include <memory>

class Model;

/// The tab "Auswertung": a table of the shots with the extremes of each sensor. Works only while it is shown.
class TabEvaluation : public QWidget
{
    Q_OBJECT

public:
    explicit TabEvaluation(QWidget *parent = nullptr);
    ~TabEvaluation() override;

    void setModel(const Model *model);
    /// The model's measurements changed; next to nothing while the tab is hidden.
    void updateData();
    /// The model's sensor names changed.
    void updateDescription();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
