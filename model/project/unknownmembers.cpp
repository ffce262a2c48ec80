#include "model/project/unknownmembers.h"

#include <algorithm>
#include <iterator>

bool operator==(const UnknownMember &a, const UnknownMember &b)
{
    return a.key == b.key && a.value == b.value;
}

void sortMembers(UnknownMembers &members)
{
    const auto isBefore = [](const UnknownMember &a, const UnknownMember &b) { return a.name < b.name; };
    const auto isSame = [](const UnknownMember &a, const UnknownMember &b) { return a.name == b.name; };
    std::stable_sort(members.begin(), members.end(), isBefore);
    // From the end, since unique() keeps the first one of a name.
    const auto kept = std::unique(members.rbegin(), members.rend(), isSame);
    members.erase(members.begin(), kept.base());
}
