#include "tools/kit-gallery/gallery.h"
#include "tools/kit-gallery/gaugepages.h"
#include "tools/kit-gallery/materialpages.h"
#include "tools/kit-gallery/overlaypages.h"
#include "tools/kit-gallery/smallpages.h"

QList<GalleryPage *> createPages()
{
    return {
        createGaugePage(),          createGaugePartsPage(),  createAttitudeMeterPage(),     createRaisedButtonPage(),
        createFlatButtonPage(),     createTogglePage(),      createTextFieldPage(),         createScrollBarPage(),
        createRipplePage(),         createOverlayPage(),     createColoredButtonPage(),     createStepBoxPage(),
        createClickableLabelPage(), createShadowFramePage(), createProgressIndicatorPage(),
    };
}
