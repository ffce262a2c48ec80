#include "view/window/windowparts.h"

#include "model/model.h"
#include "view/home/aboutdialog.h"
#include "view/oscilloscope/taboszilloscope.h"
#include "view/terminal/tabdatalogger.h"
#include "view/window/dialogprompts.h"
#include "view/window/view.h"

WindowParts::WindowParts(View *window, Model *data, std::unique_ptr<UserPrompts> prompts)
    : view(window)
    , model(data)
    , questions(prompts ? std::move(prompts) : std::make_unique<DialogPrompts>(window))
    , actions(window)
    , toolBar(window, actions, languages.createLanguageMenu(window))
    , pages(window)
    , status(window, data)
    , link(window, actions, status)
    , display(data, pages.pages(), status)
    , recent(pages.pages().home)
    , exports(window, data)
    , memory(window, questions, languages)
{}

void WindowParts::readSettings()
{
    memory.read();
    recent.read();
}

void WindowParts::showEmptyProject()
{
    for (int page = 0; page < pages.count(); ++page)
        view->setTabEnabled(page, true);
    view->setConnected(model->isConnected());
    pages.pages().oszi->clearDeletionField();
    pages.pages().logger->clear();
    view->updateView();
}

void WindowParts::retranslate()
{
    pages.retranslate();
    actions.retranslate();
    languages.retranslateUi();
    model->retranslatePhaseNames();
    toolBar.retranslate(); // behind the actions, whose texts it measures
    status.retranslate();
    display.refreshProject(); // names and numbers in its texts
}

void WindowParts::showAbout()
{
    if (!about)
        about = new AboutDialog(model, view);
    about->show();
    about->raise();
    about->activateWindow();
}
