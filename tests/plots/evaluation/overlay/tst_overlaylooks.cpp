#include "plots/evaluation/overlay/colordelegate.h"
#include "plots/evaluation/overlay/overlaylooks.h"
#include "tests/support/rows.h"

#include <QtTest>

using Keys = OverlayLooks::Keys;
Q_DECLARE_METATYPE(Keys)

class OverlayLooksTest : public QObject
{
    Q_OBJECT

private slots:
    void choicesFollowTheirShots_data()
    {
        // Of the shots 11, 12 and 13 the second is hidden and the third is the reference.
        columns<Keys, bool, int, int>("shots", "moved", "hidden", "reference");
        row("the same", Keys{11, 12, 13}, false, 1, 2);
        row("one more", Keys{11, 12, 13, 14}, false, 1, 2);
        row("first removed", Keys{12, 13}, true, 0, 1);
        row("hidden removed", Keys{11, 13}, true, -1, 1);
        row("reference removed", Keys{11, 12}, true, 1, -1);
        row("another in its place", Keys{11, 12, 14}, true, 1, -1);
        row("other order", Keys{13, 12, 11}, true, 1, 0);
        row("none left", Keys{}, true, -1, -1);
    }

    void choicesFollowTheirShots()
    {
        QFETCH(Keys, shots);
        OverlayLooks looks;
        QVERIFY(!looks.setShots({11, 12, 13}));
        looks.setHidden(1, true);
        looks.setReference(2);
        QTEST(looks.setShots(shots), "moved");
        int hidden = -1;
        for (int shot = 0; shot < int(shots.size()); ++shot) {
            if (looks.isHidden(shot))
                hidden = shot;
        }
        QTEST(hidden, "hidden");
        QTEST(looks.reference(), "reference");
    }

    void removedShotsAreForgotten()
    {
        OverlayLooks looks;
        (void)looks.setShots({11, 12}); // these are the first
        looks.setColor(0, Qt::red);
        looks.setReference(0);
        QVERIFY(looks.setShots({12}));
        QVERIFY(looks.setShots({11}));
        QCOMPARE(looks.color(0), ColorDelegate::colorAt(0));
        QCOMPARE(looks.reference(), -1);
    }

    void referenceHasToExist()
    {
        OverlayLooks looks;
        (void)looks.setShots({11, 12}); // these are the first
        for (const int shot : {2, -1}) {
            looks.setReference(1);
            looks.setReference(shot);
            QCOMPARE(looks.reference(), -1);
        }
    }
};

QTEST_APPLESS_MAIN(OverlayLooksTest)
#include "tst_overlaylooks.moc"
