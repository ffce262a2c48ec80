#include "tools/kit-gallery/gallery.h"
#include "tools/kit-gallery/smallpages.h"

QList<GalleryPage *> createPages()
{
    return {createColoredButtonPage(), createStepBoxPage(), createClickableLabelPage(), createShadowFramePage(),
            createProgressIndicatorPage()};
}
