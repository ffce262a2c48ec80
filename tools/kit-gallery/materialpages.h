#pragma once

class GalleryPage;

[[nodiscard]] GalleryPage *createRaisedButtonPage();
[[nodiscard]] GalleryPage *createFlatButtonPage();
[[nodiscard]] GalleryPage *createTogglePage();
[[nodiscard]] GalleryPage *createTextFieldPage();
[[nodiscard]] GalleryPage *createScrollBarPage();
