#include "view/window/maintoolbar.h"

#include "app/theme.h"
#include "view/common/actionicon.h"
#include "view/window/actiontips.h"
#include "view/window/viewactions.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProxyStyle>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int kNarrow = 900; // pixels; all buttons with their texts need a little less

/// Icons in a menu as high as its large text; a style sheet cannot say so.
class MenuStyle : public QProxyStyle
{
public:
    MenuStyle()
        : QProxyStyle(QStringLiteral("Fusion"))
    {}
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        constexpr int kIconSize = 26;
        return metric == PM_SmallIconSize ? kIconSize : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

void holdWidth(QWidget *button, const QStringList &texts, bool compact)
{
    button->ensurePolished(); // its font comes from a style sheet
    button->setMinimumWidth(0);
    const QFontMetrics metrics = button->fontMetrics();
    const auto width = [&metrics](const QString &text) { return metrics.size(Qt::TextShowMnemonic, text).width(); };
    int widest = 0;
    for (const QString &text : texts)
        widest = std::max(widest, width(text));
    const int shown = width(static_cast<QToolButton *>(button)->text());
    if (!compact)
        button->setMinimumWidth(button->sizeHint().width() + widest - shown);
}

} // namespace

MainToolBar::MainToolBar(QMainWindow *window, const ViewActions &actions, QMenu *languages)
    : m_window(window)
    , m_actions(actions)
    , m_bar(window->addToolBar(QString()))
    , m_menu(new QMenu(window))
{
    m_bar->setObjectName(QStringLiteral("toolBar"));
    m_bar->setMovable(false);
    m_bar->setContextMenuPolicy(Qt::PreventContextMenu); // it would offer to hide the bar for good
    m_bar->setIconSize(QSize(36, 36));
    m_bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    fillBar();
    m_menu->setObjectName(QStringLiteral("menu"));
    fillMenu(languages);
    // A bar for one menu would take a row of a small screen; all menus open from the tool bar.
    window->menuBar()->hide();
    window->installEventFilter(this);
}

void MainToolBar::fillBar()
{
    m_bar->addAction(m_actions.connectBox);
    m_bar->addAction(m_actions.calibrate);
    m_bar->addAction(m_actions.startRecording);
    addSpacer();
    addIconButton(m_actions.newProject, QStringLiteral("file-plus.png"));
    addIconButton(m_actions.openProject, QStringLiteral("folder-open.png"));
    addIconButton(m_actions.saveProject, QStringLiteral("content-save.png"));
    m_dispensable.append(m_bar->addSeparator());
    m_bar->addAction(m_actions.menu);
    new ActionTips(m_bar);
}

void MainToolBar::addSpacer() const
{
    auto *spacer = new QWidget(m_bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_bar->addWidget(spacer);
}

void MainToolBar::addIconButton(QAction *action, const QString &icon)
{
    // The bar is dark and the menu is white: one icon of the action cannot serve both.
    auto *button = new QToolButton(m_bar);
    button->setIcon(actionIcon(icon, theme::qColorBackground));
    button->setIconSize(m_bar->iconSize());
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    m_dispensable.append(m_bar->addWidget(button));
    m_iconButtons.append({button, action});
}

void MainToolBar::fillMenu(QMenu *languages)
{
    auto *style = new MenuStyle;
    style->setParent(m_menu);
    for (QMenu *styled : {m_menu, languages})
        styled->setStyle(style);
    m_menu->addActions(
        {m_actions.newProject, m_actions.openProject, m_actions.saveProject, m_actions.saveAs, m_actions.openBlackBox});
    m_menu->addSeparator();
    m_menu->addActions({m_actions.saveCsv, m_actions.saveOszi, m_actions.saveTerminal});
    m_menu->addSeparator();
    m_menu->addActions({m_actions.disconnectBox, m_actions.firmwareUpdate});
    m_menu->addSeparator();
    languages->setIcon(actionIcon(QStringLiteral("translate.png"), theme::qColorPrimary));
    m_menu->addMenu(languages);
    m_menu->addActions({m_actions.about, m_actions.quit});
}

void MainToolBar::addToProjectMenu(QAction *action) const
{
    m_menu->insertAction(m_actions.openBlackBox, action);
}

void MainToolBar::popUpMenu() const
{
    const QWidget *button = m_bar->widgetForAction(m_actions.menu);
    // In a very narrow window the button is behind the bar's own extension button.
    const QPoint corner = button->isVisible() ? button->mapToGlobal(QPoint(button->width(), button->height()))
                                              : m_window->mapToGlobal(m_bar->geometry().bottomRight());
    m_menu->popup(corner - QPoint(m_menu->sizeHint().width(), 0));
}

bool MainToolBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Resize)
        setCompact(m_window->width() < kNarrow); // the event's size may be out of date while a window manager maximises
    return QObject::eventFilter(watched, event);
}

void MainToolBar::setCompact(bool compact)
{
    m_bar->setToolButtonStyle(compact ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
    for (QAction *action : qAsConst(m_dispensable))
        action->setVisible(!compact);
    holdWidths();
}

void MainToolBar::holdWidths() const
{
    const bool compact = m_bar->toolButtonStyle() == Qt::ToolButtonIconOnly;
    for (QAction *action : {m_actions.connectBox, m_actions.startRecording})
        holdWidth(m_bar->widgetForAction(action), m_actions.changingTexts(action), compact);
}

void MainToolBar::retranslate()
{
    m_bar->setWindowTitle(tr("Werkzeugleiste"));
    m_bar->setAccessibleName(m_bar->windowTitle()); // Qt's own keeps the first title
    nameIconButtons();
    holdWidths();
}

void MainToolBar::nameIconButtons() const
{
    for (const auto &[button, action] : m_iconButtons) {
        button->setAccessibleName(action->iconText());
        button->setToolTip(tipWithKey(*action));
        button->setStatusTip(action->statusTip());
    }
}
