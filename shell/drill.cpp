#include "shell/drill.h"

#include "shell/score.h"
#include "shell/settings.h"

#include <functional>
#include <map>

namespace shell {

namespace {

std::map<std::string, Drill*, std::less<>> drills;
int session = 0;

} // namespace

void registerDrill(std::string_view exerciseType, Drill& drill)
{
    drills[std::string(exerciseType)] = &drill;
}

void unregisterDrill(std::string_view exerciseType)
{
    drills.erase(std::string(exerciseType));
}

Drill* runningDrill()
{
    const auto found = drills.find(settings.ExerciseType);
    return found == drills.end() ? nullptr : found->second;
}

void beginDrill(std::string_view exerciseType)
{
    ++session;
    settings.ExerciseType = exerciseType;
    resetScore();
}

void leaveDrill()
{
    ++session;
}

int drillSession()
{
    return session;
}

} // namespace shell
