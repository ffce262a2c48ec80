#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <deque>

class QFileDialog;
class QWidget;

/// Answers the program's real dialogs one after the other according to a list: takes a picture of each, then presses
/// the button or types the file name from the list. A dialog that is not in the list is closed and reported.
class DialogDriver : public QObject
{
    Q_OBJECT

public:
    struct Answer
    {
        QString picture;    ///< name of the picture to take; empty: none
        QString button;     ///< text of the button to press, without "&"; for a file dialog empty
        QString fileName{}; ///< what to type into a file dialog
    };

    explicit DialogDriver(QObject *parent = nullptr);

    void expect(const Answer &answer) { m_answers.push_back(answer); }
    /// True if every expected dialog came and no other did.
    [[nodiscard]] bool isDone() const { return m_answers.empty() && m_surprises.isEmpty(); }
    /// What was not as expected.
    [[nodiscard]] QStringList surprises() const { return m_surprises; }

signals:
    void pictureWanted(QWidget *dialog, const QString &name);

private:
    void look();
    void answerWith(QWidget *dialog, const Answer &answer);
    void typeFileName(QFileDialog *dialog, const QString &fileName);
    void chooseFile(QFileDialog *dialog, const QString &fileName);
    void pressButton(QWidget *dialog, const QString &text);

    std::deque<Answer> m_answers;
    QStringList m_surprises;
    QTimer m_timer;
    QWidget *m_seen = nullptr; ///< only compared: the dialog may be deleted
};
