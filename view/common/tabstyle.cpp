#include "view/common/tabstyle.h"

#include "app/theme.h"
#include "view/common/actionicon.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tabstyle {

QString windowSheet()
{
    // A check box asks for too little room while its indicator has a minimum size only.
    // The sheet for menus gives entries that are disabled the colour of the others.
    return QStringLiteral("QCheckBox::indicator {width: 22px; height: 22px;}"
                          "QMenu::item:disabled {color: %1;}")
        .arg(theme::colorMedium);
}

QString fixedPitchSheet()
{
    return QStringLiteral("QPlainTextEdit {font-family: \"Courier New\"; font-size: 16px; color: %1;"
                          " background-color: %2; border: 1px solid %3;}"
                          "QPlainTextEdit:focus {border: 2px solid %4;}")
        .arg(theme::colorText, theme::colorBackground, theme::colorBorder, theme::colorPrimary);
}

void makeHeading(QLabel *label, int pixels)
{
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    label->setStyleSheet(QStringLiteral("QLabel {font: bold %1px; color: %2;}").arg(pixels).arg(theme::colorPrimary));
}

void makeHint(QLabel *label)
{
    label->setWordWrap(true);
    label->setStyleSheet(QStringLiteral("QLabel {font-size: 16px; color: %1;}").arg(theme::colorDark));
}

void makeRegular(QPushButton *button)
{
    button->setStyleSheet(QStringLiteral("QPushButton {padding: 0px 18px;}"));
}

QString largeSheet()
{
    return QStringLiteral("QPushButton {font-size: 22px; min-height: 64px; padding: 4px 20px; text-align: left;}");
}

void makeLarge(QPushButton *button, const QString &iconFile)
{
    button->setStyleSheet(largeSheet());
    button->setIcon(actionIcon(iconFile, theme::qColorBackground));
    button->setIconSize(QSize(36, 36));
}

QWidget *addScrolledPage(QWidget *tab)
{
    auto *page = new QWidget;
    auto *scroll = new QScrollArea(tab);
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    // Both would be painted in the window's grey.
    page->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    auto *layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);
    return page;
}

} // namespace tabstyle
