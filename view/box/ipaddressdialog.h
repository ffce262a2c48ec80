#pragma once

#include <QDialog>

#include <functional>

class QLabel;
class QPushButton;
class QtMaterialTextField;

/// Asks for another address after a connection broke or failed. Can be accepted only while the text is valid.
class IPAddressDialog : public QDialog
{
    Q_OBJECT

public:
    using Validator = std::function<bool(const QString &)>;

    /// Without a validator every text that is not blank is valid.
    IPAddressDialog(const QString &current, Validator isValid, QWidget *parent = nullptr);

    /// Why the user is asked, below the heading; empty: nothing is shown.
    void setReason(const QString &reason);
    /// As typed, without blanks around it.
    [[nodiscard]] QString address() const;

private:
    void onTextChanged();
    void layOut(QLabel *heading, QLabel *label);

    Validator m_isValid;
    QLabel *m_reason = nullptr;
    QtMaterialTextField *m_edit = nullptr;
    QPushButton *m_ok = nullptr;
    QPushButton *m_cancel = nullptr;
};
