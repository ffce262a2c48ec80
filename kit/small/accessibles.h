#pragma once

/// Lets screen readers know the kit's own small widgets by what they do and show: ClickableLabel as a button,
/// LeftRightStepBox as a spin box, ProgressIndicator as a progress bar. Called by their constructors; once is enough.
void installKitAccessibility();
