#pragma once

#include <QObject>
#include <QString>
#include <QTranslator>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

/// Offers the languages whose translation files lie beside the program, and switches the program's texts, Qt's own
/// texts and the numbers to the one chosen. The texts in the program itself are German; that is the language to begin
/// with.
class MultiLanguageUtils : public QObject
{
    Q_OBJECT

public:
    /// Without a folder the one named "languages" beside the program.
    explicit MultiLanguageUtils(const QString &folder = QString(), QObject *parent = nullptr);

    /// Adds the menu to the window's menu bar, with one checkable action for each language found; empty without files.
    /// An action of the window that carries the language's code as data is taken, else one is made. The action of the
    /// system's language is checked. The menu belongs to the menu bar; call this once.
    QMenu *createLanguageMenu(QMainWindow *window);
    void retranslateUi();

    /// Two-letter code of the language in use.
    [[nodiscard]] QString language() const { return m_language; }
    /// Whether the menu offers the language.
    [[nodiscard]] bool isOffered(const QString &code) const;
    /// Does nothing for the language in use. Numbers follow also if the file cannot be loaded; the texts are then the
    /// built-in German ones.
    void loadLanguage(const QString &code);

    /// The code in the name of a translation file; the whole base name where there is no "-".
    [[nodiscard]] static QString languageCode(const QString &fileName);
    /// The language of a locale's name, such as de for de_DE.
    [[nodiscard]] static QString languageOfLocale(const QString &localeName);

public slots:
    /// The user chose the language whose code the action carries.
    void slotLanguageChanged(QAction *action);

signals:
    /// The user chose a language; it is loaded.
    void languageChosen(const QString &code);

private:
    [[nodiscard]] QAction *actionFor(const QString &code, QMainWindow *window) const;
    [[nodiscard]] QAction *offered(const QString &code) const;
    void addLanguage(const QString &code, QMainWindow *window);
    void switchTranslator(QTranslator &translator, const QString &fileName);

    QString m_language;
    QString m_folder;
    QTranslator m_translator;
    QActionGroup *m_group;
    QMenu *m_menu = nullptr;
};
