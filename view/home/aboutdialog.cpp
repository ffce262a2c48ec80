#include "view/home/aboutdialog.h"

#include "app/theme.h"
#include "kit/material/qtmaterialflatbutton.h"
#include "kit/material/qtmaterialraisedbutton.h"
#include "model/model.h"
#include "view/common/actionicon.h"
#include "view/common/tabstyle.h"
#include "view/home/aboutinfo.h"

#include <QClipboard>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>

namespace {

constexpr QSize kSize(1000, 660);
constexpr QSize kSmallest(480, 360);
constexpr int kMargin = 24;
constexpr int kLicenceNames = 230; // pixels
constexpr int kCopiedTime = 2500;  // ms
constexpr int kJournalTime = 1000; // ms

/// The window's own side tabs are too large for a dialog.
QString sheet()
{
    return QStringLiteral(
               "AboutDialog, QTabWidget {background-color: %1;}"
               "QTabWidget {border: 0px;}"
               "QTabWidget::pane {border: 0px; border-top: 1px solid %2;}"
               "QTabBar {font: bold 18px;}"
               "QTabBar::tab {background-color: %1; border: 0px; border-bottom: 4px solid %1; font: bold 18px;"
               " color: %3; min-height: 44px; min-width: 120px; padding: 0px 16px; text-align: center;}"
               "QTabBar::tab:selected {border: 0px; border-bottom: 4px solid %4; color: %4;}"
               "QListWidget {border: 1px solid %2; outline: 0px;}"
               "QListWidget::item {border: 0px; min-height: 44px; padding: 0px 8px;}"
               "QListWidget::item:selected {background-color: %4; color: %1;}"
               "QPushButton {font-size: 18px; padding: 0px 20px; min-height: 48px; min-width: 120px;}"
               "QPushButton:focus {border: 3px solid %5;}")
        .arg(theme::colorBackground, theme::colorBorder, theme::colorDark, theme::colorPrimary, theme::colorText);
}

} // namespace

AboutDialog::AboutDialog(const Model *model, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , m_model(model)
{
    setObjectName(QStringLiteral("AboutDialog"));
    setStyleSheet(sheet());
    setMinimumSize(kSmallest);
    resize(kSize.boundedTo(screen()->availableSize()));
    setSizeGripEnabled(true);
    m_tabs = new QTabWidget(this);
    m_tabs->addTab(createVersions(), QString());
    m_tabs->addTab(createLicences(), QString());
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(16);
    column->addWidget(createHead());
    column->addWidget(m_tabs, 1);
    column->addWidget(createButtons());
    m_copiedTimer.setSingleShot(true);
    m_copiedTimer.setInterval(kCopiedTime);
    connect(&m_copiedTimer, &QTimer::timeout, this, [this] { showCopied(false); });
    connect(&m_journalTimer, &QTimer::timeout, this, [this] {
        if (isVisible())
            showVersions();
    });
    m_journalTimer.start(kJournalTime);
    connect(m_model, &Model::appStateChanged, this, &AboutDialog::showVersions);
    connect(m_model, &Model::projectChanged, this, &AboutDialog::showVersions); // the box has described itself
    retranslateUi();
    m_licences->setCurrentRow(0);
    m_close->setFocus();
}

QWidget *AboutDialog::createHead()
{
    auto *head = new QWidget(this);
    auto *picture = new QLabel(head);
    picture->setPixmap(QPixmap(theme::logoPath));
    picture->setAccessibleName(theme::applicationName);
    m_subtitle = new QLabel(head);
    m_subtitle->setStyleSheet(QStringLiteral("QLabel {font-size: 20px; color: %1;}").arg(theme::colorDark));
    m_subtitle->setWordWrap(true);
    auto *row = new QHBoxLayout(head);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    row->addWidget(picture);
    row->addWidget(m_subtitle, 1, Qt::AlignBottom);
    return head;
}

QWidget *AboutDialog::createVersions()
{
    auto *tab = new QWidget(this);
    QWidget *page = tabstyle::addScrolledPage(tab);
    m_facts = new QGridLayout(page);
    m_facts->setContentsMargins(0, 12, 0, 0);
    m_facts->setHorizontalSpacing(24);
    m_facts->setVerticalSpacing(4);
    m_facts->setColumnStretch(1, 1);
    return tab;
}

QWidget *AboutDialog::createLicences()
{
    auto *page = new QWidget(this);
    m_licences = new QListWidget(page);
    m_licences->setObjectName(QStringLiteral("listLicences"));
    m_licences->setFixedWidth(kLicenceNames);
    m_summary = new QLabel(page);
    tabstyle::makeHint(m_summary);
    m_licence = new QPlainTextEdit(page);
    m_licence->setObjectName(QStringLiteral("editLicence"));
    m_licence->setReadOnly(true);
    m_licence->setTabChangesFocus(true);
    m_licence->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_licence->setLineWrapMode(QPlainTextEdit::NoWrap); // the texts contain their own line breaks
    m_licence->setStyleSheet(tabstyle::fixedPitchSheet() + QStringLiteral("QPlainTextEdit {font-size: 14px;}"));
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 12, 0, 0);
    grid->setSpacing(12);
    grid->addWidget(m_licences, 0, 0, 2, 1);
    grid->addWidget(m_summary, 0, 1);
    grid->addWidget(m_licence, 1, 1);
    grid->setRowStretch(1, 1);
    connect(m_licences, &QListWidget::currentRowChanged, this, &AboutDialog::showLicence);
    return page;
}

QWidget *AboutDialog::createButtons()
{
    auto *bar = new QWidget(this);
    m_copy = new QtMaterialFlatButton(bar);
    m_copy->setObjectName(QStringLiteral("buttonCopyVersions"));
    m_copy->setAutoDefault(false);
    m_copy->setIconSize(QSize(24, 24));
    m_close = new QtMaterialRaisedButton(bar);
    m_close->setObjectName(QStringLiteral("buttonClose"));
    m_close->setDefault(true);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(16);
    row->addWidget(m_copy);
    row->addStretch(1);
    row->addWidget(m_close);
    connect(m_copy, &QPushButton::clicked, this, &AboutDialog::copyVersions);
    connect(m_close, &QPushButton::clicked, this, &QDialog::close);
    return bar;
}

void AboutDialog::showVersions()
{
    const QVector<AboutFact> facts = aboutFacts(*m_model);
    while (m_factLabels.size() < 2 * facts.size()) {
        const int index = m_factLabels.size();
        auto *label = new QLabel(m_facts->parentWidget());
        label->setTextFormat(Qt::PlainText);
        if (index % 2 == 1) {
            label->setObjectName(QStringLiteral("labelAboutFact%1").arg(index / 2 + 1));
            label->setWordWrap(true);
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
            label->setStyleSheet(QStringLiteral("QLabel {font-weight: bold;}"));
        }
        m_facts->addWidget(label, index / 2, index % 2, Qt::AlignTop);
        // The room that is left goes below the last fact.
        m_facts->setRowStretch(index / 2 + 1, 1);
        m_facts->setRowStretch(index / 2, 0);
        m_factLabels.append(label);
    }
    for (int i = 0; i < facts.size(); ++i) {
        m_factLabels.at(2 * i)->setText(facts.at(i).name + QLatin1Char(':'));
        m_factLabels.at(2 * i + 1)->setText(facts.at(i).value);
    }
}

void AboutDialog::showLicences()
{
    const int current = m_licences->currentRow();
    m_licences->clear();
    const QVector<AboutLicence> licences = aboutLicences();
    for (const AboutLicence &licence : licences)
        m_licences->addItem(licence.name);
    m_licences->setCurrentRow(current);
}

void AboutDialog::showLicence(int row)
{
    const AboutLicence licence = aboutLicences().value(row);
    m_summary->setText(licence.summary);
    m_licence->setPlainText(licence.text);
}

void AboutDialog::copyVersions()
{
    QGuiApplication::clipboard()->setText(aboutText(aboutFacts(*m_model)));
    showCopied(true);
    m_copiedTimer.start();
}

void AboutDialog::showCopied(bool copied)
{
    m_copy->setText(copied ? tr("Kopiert") : tr("&Versionen kopieren"));
    m_copy->setIcon(actionIcon(copied ? QStringLiteral("check.png") : QStringLiteral("clipboard-text.png"),
                               theme::qColorBackground));
}

void AboutDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QDialog::changeEvent(event);
}

void AboutDialog::retranslateUi()
{
    setWindowTitle(tr("Über %1").arg(theme::applicationName));
    m_subtitle->setText(tr("Prozessüberwachung für Spritzgießwerkzeuge"));
    m_tabs->setTabText(0, tr("Versionen"));
    m_tabs->setTabText(1, tr("Lizenzen"));
    m_licences->setAccessibleName(tr("Lizenzen"));
    m_licence->setAccessibleName(tr("Text der Lizenz"));
    m_copy->setToolTip(tr("Kopiert die Versionen als Text für eine Anfrage beim Hersteller"));
    m_close->setText(tr("&Schließen"));
    showCopied(false);
    m_copy->setMinimumWidth(m_copy->sizeHint().width()); // keeps its width while it shows the shorter "copied"
    showVersions();
    showLicences();
}
