#include "view/window/windowparts.h"

#include "model/model.h"
#include "view/home/aboutdialog.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/mainwindow.h"
#include "view/window/prompts/dialogprompts.h"
#include "view/window/windowsignals.h"

WindowParts::WindowParts(MainWindow *face, Model *data, std::unique_ptr<UserPrompts> prompts)
    : window(face)
    , model(data)
    , questions(prompts ? std::move(prompts) : std::make_unique<DialogPrompts>(face))
    , actions(face)
    , backup(face, data)
    , toolBar(face, actions, languages.createLanguageMenu(face))
    , pages(face)
    , status(face, data)
    , link(face, actions, pages.pages(), status)
    , display(data, pages.pages(), status)
    , recent(pages.pages().home)
    , exports(face, data, pages.pages())
    , memory(face, questions, languages)
{
    toolBar.addToProjectMenu(backup.action());
    windowsignals::connectAll(face, actions, pages.pages());
}

void WindowParts::readSettings()
{
    memory.read();
    recent.read();
}

void WindowParts::showEmptyProject()
{
    for (int page = 0; page < pages.count(); ++page)
        window->setTabEnabled(page, true);
    window->setConnected(model->isConnected());
    pages.pages().oszi->clearDeletionField();
    pages.pages().logger->clear();
    window->updateView();
}

void WindowParts::retranslate()
{
    pages.retranslate();
    actions.retranslate();
    backup.retranslate();
    languages.retranslateUi();
    model->retranslatePhaseNames();
    toolBar.retranslate(); // behind the actions, whose texts it measures
    status.retranslate();
    display.refreshProject(); // names and numbers in its texts
}

void WindowParts::showAbout()
{
    if (!about)
        about = new AboutDialog(model, window);
    about->show();
    about->raise();
    about->activateWindow();
}
