#include "model/journal/savedshots.h"

#include "model/arrayindex.h"
#include "model/project/metafile.h"
#include "model/project/project.h"

SavedShots savedShots(const Project &project)
{
    SavedShots saved;
    saved.checks = shotChecks(project.shots);
    for (int sensor = 0; sensor < kNumSensors; ++sensor) {
        std::vector<SavedRun> &runs = saved.runs[at(sensor)];
        runs.reserve(at(project.shots.count(sensor)));
        for (int shot = 0; shot < project.shots.count(sensor); ++shot)
            runs.push_back({project.shots.id(sensor, shot), project.shots.samples(sensor, shot)->size()});
    }
    for (std::size_t image = 0; image < saved.pictures.size(); ++image)
        saved.pictures[image] = project.images.pixmaps()[image].cacheKey();
    return saved;
}
