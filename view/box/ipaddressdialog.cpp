#include "view/box/ipaddressdialog.h"

#include "app/theme.h"
#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "kit/material/qtmaterialtextfield.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kWidth = 760;
constexpr int kLongestAddress = 253; // of a host name

} // namespace

IPAddressDialog::IPAddressDialog(const QString &current, Validator isValid, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_isValid(std::move(isValid))
{
    setObjectName(QStringLiteral("IPAddressDialog"));
    setWindowTitle(theme::applicationName);
    setStyleSheet(QStringLiteral("IPAddressDialog {background-color: %1;}"
                                 "QLineEdit {font-size: 24px;}"
                                 "QPushButton {font-size: 22px; min-height: 50px; min-width: 160px;}")
                      .arg(theme::colorBackground));
    auto *heading = new QLabel(tr("<b>Verbindung abgebrochen</b>"), this);
    heading->setStyleSheet(QStringLiteral("QLabel {font-size: 28px; color: %1;}").arg(theme::colorPrimary));
    m_reason = new QLabel(this);
    m_reason->setObjectName(QStringLiteral("labelReason"));
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->hide();
    auto *label = new QLabel(tr("Unter anderer IP-Adresse verbinden:"), this);
    m_edit = new QtMaterialTextField(this);
    m_edit->setText(current);
    m_edit->setObjectName(QStringLiteral("lineEditAddress"));
    m_edit->setMaxLength(kLongestAddress);
    m_edit->setAccessibleName(label->text());
    m_edit->setSupportReserved(true); // the error text must not move the buttons
    m_edit->setClearable(true);
    m_edit->selectAll();
    label->setBuddy(m_edit);
    m_ok = new QtMaterialRaisedButton(tr("&Verbinden"), this);
    m_ok->setObjectName(QStringLiteral("buttonOK"));
    m_ok->setDefault(true);
    m_cancel = new QtMaterialFlatButton(tr("&Abbrechen"), this);
    m_cancel->setObjectName(QStringLiteral("buttonCancel"));
    m_cancel->setAutoDefault(false);
    layOut(heading, label);
    connect(m_edit, &QLineEdit::textChanged, this, &IPAddressDialog::onTextChanged);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    onTextChanged();
}

void IPAddressDialog::layOut(QLabel *heading, QLabel *label)
{
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(32, 24, 32, 24);
    column->setSpacing(12);
    column->addWidget(heading);
    column->addWidget(m_reason);
    column->addWidget(label);
    column->addWidget(m_edit);
    column->addLayout(buttons);
    setMinimumWidth(kWidth);
}

void IPAddressDialog::setReason(const QString &reason)
{
    m_reason->setText(reason);
    m_reason->setVisible(!reason.isEmpty());
}

QString IPAddressDialog::address() const
{
    return m_edit->text().trimmed();
}

void IPAddressDialog::onTextChanged()
{
    const bool valid = m_isValid ? m_isValid(address()) : !address().isEmpty();
    m_ok->setEnabled(valid);
    m_edit->setErrorText(valid ? QString()
                               : tr("Bitte eine IPv4-Adresse (z. B. 192.168.4.1) oder einen Rechnernamen eingeben."));
}
