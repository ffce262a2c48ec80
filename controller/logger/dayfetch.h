#pragma once

#include "device/protocol/scpresult.h"

#include <QObject>
#include <QTimer>

class BoxFolders;
class ScpTransfer;

/// Fetches one day from a box into the folder of that box and day, in as many attempts as bring something new.
class DayFetch : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the fetch. `interval`: ms between two looks at what has arrived.
    DayFetch(ScpTransfer &scp, const BoxFolders &folders, int interval = 500);

    /// Returns when the day is there or cannot be fetched, with events processed meanwhile; what has arrived is in
    /// the folder of the box in any case, unless isMoved() is false.
    [[nodiscard]] ScpOutcome run(const QString &box, const QString &directory);
    [[nodiscard]] bool isMoved() const { return m_isMoved; }
    /// Another box was found at the address, and what was here of the one before has been put aside.
    [[nodiscard]] bool hasOtherBox() const { return m_hasOtherBox; }

signals:
    /// Files of the day that are here; `total` is 0 while their number is not known.
    void progress(int arrived, int total);

private:
    struct Amount
    {
        int files = 0;
        qint64 bytes = 0;
    };

    [[nodiscard]] ScpOutcome attempts(const QString &box, const QString &directory);
    [[nodiscard]] Amount amount() const;
    [[nodiscard]] bool hasGrown();
    void takeOutput(const QByteArray &bytes);
    void look();

    ScpTransfer &m_scp;
    const BoxFolders &m_folders;
    QTimer m_timer;
    QString m_place;
    QByteArray m_output; // its beginning
    Amount m_before;
    int m_total = 0;
    bool m_isMoved = true;
    bool m_hasOtherBox = false;
};
