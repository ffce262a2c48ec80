#pragma once

class Model;
class View;
struct ViewActions;

/// Turns what the user does into the signals of the window, and what the model tells into calls of its slots.
namespace viewsignals {

/// Once, when the window has all its pages.
void connectAll(View *view, const ViewActions &actions, const Model *model);

} // namespace viewsignals
