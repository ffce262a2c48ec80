#pragma once

/// What the demonstration with the simulated box is doing; Unavailable: the simulator is not there.
enum class DemoState { Unavailable, Off, Starting, Running };
