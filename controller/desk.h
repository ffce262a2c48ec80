#pragma once

class Model;
class Occupancy;
class View;

/// What every action of the user needs: the window to ask and tell, the data, and whether something else is under way.
/// All three must outlive whoever has them.
struct Desk
{
    View &view;
    Model &model;
    Occupancy &occupancy;
};
