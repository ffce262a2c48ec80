#include "view/home/tabhome.h"

#include "app/theme.h"
#include "model/model.h"
#include "view/common/tabstyle.h"
#include "view/home/boxcard.h"
#include "view/home/projectcard.h"

#include <QEvent>
#include <QLabel>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 20;
constexpr int kWidestPage = 1900;
constexpr int kNarrowPage = 880;
constexpr int kNarrowCard = 640;
constexpr int kTinyPage = 420; // the window as it is without settings

QBoxLayout::Direction direction(bool isNarrow)
{
    return isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
}

} // namespace

TabHome::TabHome(QWidget *parent)
    : QWidget(parent)
{
    layOut(tabstyle::addScrolledPage(this));
    connect(m_boxCard, &BoxCard::connectRequested, this, &TabHome::connectRequested);
    connect(m_boxCard, &BoxCard::demoClicked, this, &TabHome::demoClicked);
    connect(m_boxCard, &BoxCard::answersWanted, this, &TabHome::boxAnswersWanted);
    connect(m_projectCard, &ProjectCard::openRequested, this, &TabHome::openRequested);
    connect(m_projectCard, &ProjectCard::removeRequested, this, &TabHome::projectRemoved);
    retranslateUi();
}

void TabHome::layOut(QWidget *page)
{
    auto *content = new QWidget(page);
    content->setMaximumWidth(kWidestPage);
    m_boxCard = new BoxCard(content);
    m_stateCard = new HomeCard(content);
    m_state = new BoxStateCard(m_stateCard);
    m_stateCard->row()->addWidget(m_state);
    m_topRow = new QBoxLayout(QBoxLayout::LeftToRight);
    m_topRow->setSpacing(0);
    m_topRow->addWidget(m_boxCard, 3);
    m_topRow->addWidget(m_stateCard, 2);
    m_pageColumn = new QVBoxLayout(content);
    m_pageColumn->setSpacing(0);
    m_pageColumn->addLayout(createHead(content));
    m_pageColumn->addLayout(m_topRow);
    m_projectCard = new ProjectCard(content);
    m_pageColumn->addWidget(m_projectCard);
    m_pageColumn->addStretch(1);
    auto *row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(content, 1);
    row->addStretch(0);
    setTiny(false);
}

QBoxLayout *TabHome::createHead(QWidget *page)
{
    m_logo = new QLabel(page);
    m_logo->setPixmap(QPixmap(theme::logoPath));
    m_logo->setAccessibleName(theme::applicationName);
    m_subtitle = new QLabel(page);
    m_subtitle->setWordWrap(true);
    m_head = new QBoxLayout(QBoxLayout::LeftToRight);
    m_head->setContentsMargins(ShadowFrame::kShadow, 0, ShadowFrame::kShadow, 0);
    m_head->setSpacing(24);
    m_head->addWidget(m_logo);
    m_head->addWidget(m_subtitle, 1);
    return m_head;
}

void TabHome::arrange(int width)
{
    m_topRow->setDirection(direction(width < kNarrowPage));
    m_head->setDirection(direction(width < kNarrowCard));
    m_boxCard->setNarrow(width < kNarrowCard);
    m_projectCard->setNarrow(width < kNarrowCard);
    if (m_isTiny != (width < kTinyPage))
        setTiny(!m_isTiny);
}

void TabHome::setTiny(bool isTiny)
{
    m_isTiny = isTiny;
    const int edge = isTiny ? 0 : kMargin - ShadowFrame::kShadow; // the cards have their own margin for the shadow
    m_pageColumn->setContentsMargins(edge, HomeCard::kGap, edge, edge);
    for (HomeCard *card : {static_cast<HomeCard *>(m_boxCard), m_stateCard, static_cast<HomeCard *>(m_projectCard)})
        card->setTiny(isTiny);
    const QPixmap picture(theme::logoPath);
    m_logo->setPixmap(isTiny ? picture.scaledToWidth(picture.width() * 3 / 4, Qt::SmoothTransformation) : picture);
    m_subtitle->setStyleSheet(
        QStringLiteral("QLabel {font-size: %1px; color: %2;}").arg(isTiny ? 18 : 22).arg(theme::colorDark));
    m_state->setStacked(isTiny);
}

void TabHome::setActions(QAction *connectBox, QAction *newProject, QAction *openProject)
{
    m_boxCard->setConnectAction(connectBox);
    m_projectCard->setActions(newProject, openProject);
}

void TabHome::setModel(const Model *model)
{
    m_model = model;
    updateFromModel();
}

void TabHome::setAddress(const QString &address)
{
    m_link.address = address;
    updateFromModel();
}

void TabHome::setConnecting(bool connecting)
{
    m_link.isConnecting = connecting;
    updateFromModel();
}

void TabHome::setRecording(bool running)
{
    m_link.isRecording = running;
    updateFromModel();
}

void TabHome::setDemoState(DemoState state)
{
    m_link.isDemo = state == DemoState::Starting || state == DemoState::Running;
    m_boxCard->setDemoState(state);
    updateFromModel();
}

void TabHome::setRecentProjects(const QStringList &files)
{
    m_projectCard->setFiles(files);
}

void TabHome::refreshRecentProjects()
{
    m_projectCard->refresh();
}

void TabHome::setRecentAddresses(const QStringList &addresses)
{
    m_boxCard->setAddresses(addresses);
}

QStringList TabHome::recentAddresses() const
{
    return m_boxCard->addresses();
}

void TabHome::setBoxDescriptions(const QHash<QString, QString> &descriptions)
{
    m_boxCard->setDescriptions(descriptions);
}

void TabHome::describeBox(const QString &address, const QString &description)
{
    emit boxDescribed(address, description);
}

void TabHome::setBoxAnswer(const QString &address, bool answers)
{
    m_boxCard->setAnswer(address, answers);
}

void TabHome::forgetBoxAnswers()
{
    m_boxCard->forgetAnswers();
}

void TabHome::updateFromModel()
{
    if (m_model)
        m_state->showState(*m_model, m_link);
}

void TabHome::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabHome::resizeEvent(QResizeEvent *event)
{
    arrange(event->size().width());
    QWidget::resizeEvent(event);
}

void TabHome::retranslateUi()
{
    m_subtitle->setText(tr("Prozessüberwachung für Spritzgießwerkzeuge"));
    updateFromModel();
}
