#pragma once

#include <QDialog>
#include <QTimer>
#include <QVector>

class Model;
class QGridLayout;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;

/// The versions of program, box and system, to be copied into a mail, and the licences. Follows the connection and
/// the language while it is open. Not modal.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    /// The model must outlive the dialog.
    explicit AboutDialog(const Model *model, QWidget *parent = nullptr);

protected:
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QWidget *createHead();
    [[nodiscard]] QWidget *createVersions();
    [[nodiscard]] QWidget *createLicences();
    [[nodiscard]] QWidget *createButtons();
    void showVersions();
    void showLicences();
    void showLicence(int row);
    void copyVersions();
    void showCopied(bool copied);
    void retranslateUi();

    const Model *m_model;
    QLabel *m_subtitle = nullptr;
    QTabWidget *m_tabs = nullptr;
    QGridLayout *m_facts = nullptr;
    QVector<QLabel *> m_factLabels; // name and value in turn
    QListWidget *m_licences = nullptr;
    QLabel *m_summary = nullptr;
    QPlainTextEdit *m_licence = nullptr;
    QPushButton *m_copy = nullptr;
    QPushButton *m_close = nullptr;
    QTimer m_copiedTimer;
    QTimer m_journalTimer; // the journal grows without a signal
};
