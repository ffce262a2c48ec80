#pragma once

#include <QStringList>
#include <QWidget>

#include <memory>

/// The tab "BlackBox": the days that the box has logged.
class TabBlackBox : public QWidget
{
    Q_OBJECT

public:
    explicit TabBlackBox(QWidget *parent = nullptr);
    ~TabBlackBox() override;

    /// The entries of the box's list block, as received.
    void setList(const QStringList &entries);
    [[nodiscard]] QStringList list() const;
    void setListButtonEnabled(bool enabled);

signals:
    /// The user wants the list of the box.
    void listRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
