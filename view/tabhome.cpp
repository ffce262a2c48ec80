#include "view/tabhome.h"

#include "app/theme.h"
#include "model/model.h"
#include "view/logging.h"
#include "view/tabstyle.h"

#include <QAction>
#include <QEvent>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace {

enum Fact { Box, Recording, Project, Shots, NumFacts };
constexpr int kButtonWidth = 380;
constexpr int kMargin = 48;

} // namespace

struct TabHome::Private
{
    Model *model = nullptr;
    QAction *connectAction = nullptr;
    QString address;
    bool recording = false;
    QLabel *subtitle = nullptr;
    QLabel *stateHeading = nullptr;
    QPushButton *connectButton = nullptr;
    QPushButton *newButton = nullptr;
    QPushButton *openButton = nullptr;
    std::array<QLabel *, NumFacts> names{};
    std::array<QLabel *, NumFacts> values{};

    [[nodiscard]] QVBoxLayout *createHead(QWidget *page);
    [[nodiscard]] QVBoxLayout *createButtons(QWidget *page);
    [[nodiscard]] QVBoxLayout *createState(QWidget *page);
    [[nodiscard]] QString boxText() const;
    [[nodiscard]] QString projectText() const;
    void set(Fact fact, const QString &text) { values[fact]->setText(text); }
};

QVBoxLayout *TabHome::Private::createHead(QWidget *page)
{
    auto *picture = new QLabel(page);
    picture->setPixmap(QPixmap(theme::logoPath));
    picture->setAccessibleName(theme::applicationName);
    subtitle = new QLabel(page);
    subtitle->setStyleSheet(QStringLiteral("QLabel {font-size: 22px; color: %1;}").arg(theme::colorDark));
    auto *head = new QVBoxLayout;
    head->setSpacing(16);
    head->addWidget(picture, 0, Qt::AlignLeft);
    head->addWidget(subtitle);
    return head;
}

QVBoxLayout *TabHome::Private::createButtons(QWidget *page)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(16);
    const auto add = [&](const char *name, const QString &icon) {
        auto *button = new QPushButton(page);
        button->setObjectName(QLatin1String(name));
        button->setMinimumWidth(kButtonWidth);
        tabstyle::makeLarge(button, icon);
        column->addWidget(button);
        return button;
    };
    connectButton = add("buttonHomeConnect", QStringLiteral("wifi.png"));
    newButton = add("buttonHomeNew", QStringLiteral("file-plus.png"));
    openButton = add("buttonHomeOpen", QStringLiteral("folder-open.png"));
    column->addStretch(1);
    return column;
}

QVBoxLayout *TabHome::Private::createState(QWidget *page)
{
    stateHeading = new QLabel(page);
    tabstyle::makeHeading(stateHeading);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(8);
    grid->setRowStretch(NumFacts, 1);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < NumFacts; ++i) {
        auto *name = new QLabel(page);
        auto *value = new QLabel(page);
        value->setObjectName(QStringLiteral("labelHomeState%1").arg(i + 1));
        value->setWordWrap(true);
        value->setTextFormat(Qt::PlainText);
        value->setStyleSheet(QStringLiteral("QLabel {font: bold 18px;}"));
        grid->addWidget(name, i, 0, Qt::AlignTop);
        grid->addWidget(value, i, 1, Qt::AlignTop);
        names[static_cast<std::size_t>(i)] = name;
        values[static_cast<std::size_t>(i)] = value;
    }
    auto *column = new QVBoxLayout;
    column->setSpacing(12);
    column->addWidget(stateHeading);
    column->addLayout(grid, 1);
    return column;
}

QString TabHome::Private::boxText() const
{
    if (!model->isConnected())
        return tr("Nicht verbunden");
    const QString versions =
        model->hardwareVersion().isEmpty()
            ? QString()
            : tr(" (Hardware %1, Firmware %2)").arg(model->hardwareVersion(), model->firmwareVersion());
    return (address.isEmpty() ? tr("Verbunden") : tr("Verbunden mit %1").arg(address)) + versions;
}

QString TabHome::Private::projectText() const
{
    const QString file = QFileInfo(model->currentFile()).fileName();
    const QString name = model->projectData().name;
    if (file.isEmpty())
        return name.isEmpty() ? tr("Noch nicht gespeichert") : name;
    return name.isEmpty() ? file : tr("%1 (%2)").arg(name, file);
}

TabHome::TabHome(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    QWidget *page = tabstyle::addScrolledPage(this);
    auto *columns = new QHBoxLayout;
    columns->setSpacing(kMargin);
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addLayout(d->createHead(page));
    columns->addLayout(d->createButtons(page));
    columns->addLayout(d->createState(page), 1);
    rows->addLayout(columns, 1);
    retranslateUi();
}

TabHome::~TabHome() = default;

void TabHome::setActions(QAction *connectBox, QAction *newProject, QAction *openProject)
{
    d->connectAction = connectBox;
    connect(connectBox, &QAction::changed, this, &TabHome::updateConnectText);
    connect(d->connectButton, &QPushButton::clicked, connectBox, &QAction::trigger);
    connect(d->newButton, &QPushButton::clicked, newProject, &QAction::trigger);
    connect(d->openButton, &QPushButton::clicked, openProject, &QAction::trigger);
    updateConnectText();
}

void TabHome::setModel(Model *model)
{
    d->model = model;
    updateFromModel();
}

void TabHome::setAddress(const QString &address)
{
    d->address = address;
    updateFromModel();
}

void TabHome::setRecording(bool running)
{
    d->recording = running;
    updateFromModel();
}

void TabHome::updateFromModel()
{
    if (!d->model)
        return;
    const int shots = d->model->numChannels(0);
    d->set(Box, d->boxText());
    d->set(Recording, d->recording ? tr("Läuft") : tr("Gestoppt"));
    d->set(Project, d->projectText());
    d->set(Shots, shots == 0 ? tr("Noch keine") : QString::number(shots));
}

void TabHome::updateConnectText()
{
    if (!d->connectAction)
        return;
    d->connectButton->setText(d->connectAction->text());
    d->connectButton->setEnabled(d->connectAction->isEnabled());
}

void TabHome::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void TabHome::retranslateUi()
{
    d->subtitle->setText(tr("Prozessüberwachung für Spritzgießwerkzeuge"));
    d->stateHeading->setText(tr("Stand"));
    d->newButton->setText(tr("&Neues Projekt"));
    d->openButton->setText(tr("Projekt &öffnen..."));
    const std::array<QString, NumFacts> names{tr("Mesotra Box:"), tr("Aufzeichnung:"), tr("Projekt:"),
                                              tr("Messungen:")};
    for (std::size_t i = 0; i < names.size(); ++i)
        d->names[i]->setText(names[i]);
    updateConnectText();
    updateFromModel();
}
