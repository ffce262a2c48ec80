#include "view/box/tabwebconfig.h"

#include "view/common/logging.h"
#include "view/common/tabstyle.h"

#include <QDesktopServices>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

QUrl boxPageUrl(const QString &address)
{
    QUrl url;
    url.setScheme(QStringLiteral("http"));
    url.setHost(address.trimmed(), QUrl::StrictMode); // stays empty if the text is no host
    return url.host().isEmpty() ? QUrl() : url;
}

struct TabWebConfig::Private
{
    QString address;
    QLabel *heading = nullptr;
    QLabel *addressLabel = nullptr;
    QLabel *hint = nullptr;
    QPushButton *open = nullptr;
};

TabWebConfig::TabWebConfig(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->heading = new QLabel(this);
    tabstyle::makeHeading(d->heading);
    d->addressLabel = new QLabel(this);
    d->addressLabel->setObjectName(QStringLiteral("labelWebAddress"));
    d->addressLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    d->addressLabel->setStyleSheet(QStringLiteral("QLabel {font-size: 32px;}"));
    d->hint = new QLabel(this);
    tabstyle::makeHint(d->hint);
    d->open = new QPushButton(this);
    d->open->setObjectName(QStringLiteral("buttonOpenWebPage"));
    tabstyle::makeLarge(d->open, QStringLiteral("web.png"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(32, 32, 32, 32);
    column->setSpacing(16);
    column->addWidget(d->heading);
    column->addWidget(d->addressLabel);
    column->addWidget(d->hint);
    column->addWidget(d->open, 0, Qt::AlignLeft);
    column->addStretch(1);
    connect(d->open, &QPushButton::clicked, this, &TabWebConfig::onOpenPage);
    retranslateUi();
}

TabWebConfig::~TabWebConfig() = default;

void TabWebConfig::setAddress(const QString &address)
{
    d->address = address.trimmed();
    updateTexts();
}

QString TabWebConfig::address() const
{
    return d->address;
}

void TabWebConfig::onOpenPage()
{
    qCDebug(lcView) << Q_FUNC_INFO;
    const QUrl url = boxPageUrl(d->address);
    if (!url.isValid() || !QDesktopServices::openUrl(url))
        emit openFailed(url);
}

void TabWebConfig::updateTexts()
{
    const QUrl url = boxPageUrl(d->address);
    d->addressLabel->setText(url.isValid() ? url.toDisplayString() : tr("Keine Adresse bekannt"));
    d->open->setEnabled(url.isValid());
}

void TabWebConfig::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabWebConfig::retranslateUi()
{
    d->heading->setText(tr("Einstellungen der Mesotra Box"));
    d->hint->setText(tr("Netzwerk, Uhrzeit und Sensoren der Box werden auf ihrer eigenen Seite eingestellt. "
                        "Die Seite öffnet sich im Browser; dieser Computer muss im Netz der Box sein."));
    d->open->setText(tr("Im &Browser öffnen"));
    updateTexts();
}
