#pragma once

class GalleryPage;

[[nodiscard]] GalleryPage *createColoredButtonPage();
[[nodiscard]] GalleryPage *createStepBoxPage();
[[nodiscard]] GalleryPage *createClickableLabelPage();
[[nodiscard]] GalleryPage *createShadowFramePage();
[[nodiscard]] GalleryPage *createProgressIndicatorPage();
