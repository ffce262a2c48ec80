#pragma once

#include "controller/project/filequestions.h"
#include "controller/project/opennotice.h"
#include "controller/project/projectlock.h"
#include "controller/project/projectstart.h"

/// Who may use which project file, and what the user is asked and told about that.
struct FileAccess
{
    ProjectLock lock;
    FileQuestions questions;
    ProjectStart start;
    OpenNotice notice;
};
