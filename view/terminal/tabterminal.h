#pragma once

#include <QWidget>

#include <memory>

/// The tab "Terminal": every line that came from the box ("< …") and went to it ("> …"), and a field to send one.
/// Keeps the newest kMaximumLines lines.
class TabTerminal : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMaximumLines = 5000;

    explicit TabTerminal(QWidget *parent = nullptr);
    ~TabTerminal() override;

    /// Both are cheap enough for every line; white space at the line's end is dropped.
    void addReceived(const QString &line);
    void addSent(const QString &line);
    void clear();
    /// All lines kept, those not shown yet included.
    [[nodiscard]] QString plainText();

signals:
    /// The line as typed, without a line feed; never empty.
    void sendRequested(const QString &line);
    void cleared();

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onSend();
    void retranslateUi();

    struct Private;
    std::unique_ptr<Private> d;
};
