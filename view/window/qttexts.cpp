#include "view/window/qttexts.h"

#include "view/common/logging.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

void installQtTexts(const QString &code)
{
    const QString name = QStringLiteral("qtTexts");
    auto *translator = QCoreApplication::instance()->findChild<QTranslator *>(name, Qt::FindDirectChildrenOnly);
    if (!translator) {
        translator = new QTranslator(QCoreApplication::instance());
        translator->setObjectName(name);
    }
    QCoreApplication::removeTranslator(translator);
    if (translator->load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
    else
        qCDebug(lcView) << "no texts for Qt's own dialogs in" << code;
}
