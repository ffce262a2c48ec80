#include "app/startup.h"
#include "tools/kit-gallery/gallery.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

#include <cstdio>
#include <memory>

namespace {

constexpr int kBestCompression = 0; // of a PNG, which is lossless: 0 means the smallest file

/// Renders each page into a PNG of its name. False if one could not be written.
bool writePictures(const QDir &folder)
{
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", qPrintable(folder.path()));
        return false;
    }
    for (GalleryPage *page : createPages()) {
        const std::unique_ptr<GalleryPage> owner(page);
        const QString file = folder.filePath(QStringLiteral("kit-%1.png").arg(page->name().toLower()));
        // Files without transparency are smaller.
        if (!page->picture().toImage().convertToFormat(QImage::Format_RGB888).save(file, "PNG", kBestCompression)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return false;
        }
    }
    return true;
}

/// A window with the list of the pages beside the chosen one.
std::unique_ptr<QWidget> createWindow()
{
    auto window = std::make_unique<QWidget>();
    auto *names = new QListWidget(window.get());
    auto *pages = new QStackedWidget(window.get());
    for (GalleryPage *page : createPages()) {
        names->addItem(page->name());
        auto *scroll = new QScrollArea(pages);
        scroll->setWidget(page);
        scroll->setWidgetResizable(true);
        pages->addWidget(scroll);
    }
    names->setMaximumWidth(260);
    names->setCurrentRow(0);
    QObject::connect(names, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);
    auto *layout = new QHBoxLayout(window.get());
    layout->addWidget(names);
    layout->addWidget(pages, 1);
    window->setWindowTitle(QStringLiteral("Ventaro kit"));
    window->resize(1280, 800);
    return window;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of the kit in its states."));
    parser.addHelpOption();
    const QCommandLineOption pictures(QStringLiteral("pictures"),
                                      QStringLiteral("Writes each page into a PNG in the folder and ends."),
                                      QStringLiteral("folder"));
    parser.addOption(pictures);
    parser.process(application);
    prepareApplication(application);
    if (parser.isSet(pictures))
        return writePictures(QDir(parser.value(pictures))) ? EXIT_SUCCESS : EXIT_FAILURE;
    const std::unique_ptr<QWidget> window = createWindow();
    window->show();
    return QApplication::exec();
}
