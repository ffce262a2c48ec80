#pragma once

/// What became of the file beside a project when the project was opened.
enum class MetaState {
    Read,
    Missing,
    Damaged, ///< or not readable
    Newer    ///< of a version that the program does not know
};
