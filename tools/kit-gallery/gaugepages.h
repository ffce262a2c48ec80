#pragma once

class GalleryPage;

[[nodiscard]] GalleryPage *createGaugePage();
[[nodiscard]] GalleryPage *createGaugePartsPage();
[[nodiscard]] GalleryPage *createAttitudeMeterPage();
