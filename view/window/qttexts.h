#pragma once

#include <QString>

/// Makes Qt's own dialogs, buttons and context menus speak a language (two-letter code). Without a translation of Qt
/// for it they speak English. Needs the application object, which owns the translator.
void installQtTexts(const QString &code);
