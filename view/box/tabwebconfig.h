#pragma once

#include <QUrl>
#include <QWidget>

#include <memory>

/// The web page of a box: "http://<address>"; an invalid URL if the text is no host.
[[nodiscard]] QUrl boxPageUrl(const QString &address);

/// The tab "Web Configuration": the box's address, and a button that opens its page in the system's browser.
class TabWebConfig : public QWidget
{
    Q_OBJECT

public:
    explicit TabWebConfig(QWidget *parent = nullptr);
    ~TabWebConfig() override;

    void setAddress(const QString &address);
    [[nodiscard]] QString address() const;

signals:
    /// The system has no browser, or refused.
    void openFailed(const QUrl &url);

protected:
    void changeEvent(QEvent *event) override;

private:
    void onOpenPage();
    void updateTexts();
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
