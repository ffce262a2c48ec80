#pragma once

/// Actions whose state the controller sets.
enum class Actions { Connect = 0, Disconnect = 1, Calibrate = 2, Recording = 3 };
/// Look of an action; Disabled is the only state that cannot be triggered.
enum class ActionState { Disabled = 0, Normal = 1, Active = 2, Alert = 3 };
