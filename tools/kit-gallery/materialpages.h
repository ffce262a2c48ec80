#pragma once

class GalleryPage;

[[nodiscard]] GalleryPage *createRaisedButtonPage();
[[nodiscard]] GalleryPage *createFlatButtonPage();
[[nodiscard]] GalleryPage *createTogglePage();
