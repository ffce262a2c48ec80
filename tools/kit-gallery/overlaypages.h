#pragma once

class GalleryPage;

[[nodiscard]] GalleryPage *createRipplePage();
[[nodiscard]] GalleryPage *createOverlayPage();
