#pragma once

#include <QWidget>

/// A widget with texts that sets them again when the language changes.
class TranslatedWidget : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    /// Sets all texts. The constructor of the class that implements it has to call it once.
    virtual void retranslateUi() = 0;

    void changeEvent(QEvent *event) override;
};
