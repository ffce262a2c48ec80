#include "plots/evaluation/values/quantitychoice.h"

#include "kit/material/qtmaterialflatbutton.h"
#include "plots/common/logging.h"
#include "plots/evaluation/values/quantitypicker.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

QuantityChoice::QuantityChoice(QWidget *parent)
    : TranslatedWidget(parent)
    , m_label(new QLabel(this))
    , m_list(new QComboBox(this))
    , m_button(new QtMaterialFlatButton(this))
    , m_picker(new QuantityPicker(this))
{
    m_list->setObjectName(QStringLiteral("comboBoxQuantity"));
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_list->setMinimumContentsLength(12);
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_label->setBuddy(m_list);
    m_button->setObjectName(QStringLiteral("buttonQuantities"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_label);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_button);
    retranslateUi();
    connect(m_list, qOverload<int>(&QComboBox::activated), this, &QuantityChoice::chosen);
    connect(m_button, &QPushButton::clicked, this, &QuantityChoice::onButton_clicked);
    connect(m_picker, &QuantityPicker::toggled, this, &QuantityChoice::toggled);
}

void QuantityChoice::setQuantities(const QVector<Quantity> &shown, const QStringList &names, int chosen)
{
    QStringList listed;
    for (int i = 0; i < m_list->count(); ++i)
        listed.append(m_list->itemText(i));
    if (names != listed) { // a list that is open would be closed
        m_list->clear();
        m_list->addItems(names);
    }
    m_list->setCurrentIndex(chosen);
    m_list->setToolTip(m_list->currentText());
    m_picker->setShown(shown);
}

void QuantityChoice::setPhaseNames(const QStringList &names)
{
    m_picker->setPhaseNames(names);
}

void QuantityChoice::onButton_clicked()
{
    qCDebug(lcPlots) << Q_FUNC_INFO;
    m_picker->popUpBelow(m_button);
}

void QuantityChoice::retranslateUi()
{
    m_label->setText(tr("Größe"));
    m_list->setAccessibleName(tr("Dargestellte Größe"));
    m_button->setText(tr("&Spalten..."));
    m_button->setToolTip(tr("Größen der Tabelle wählen"));
}
