#include "model/project/openlosses.h"

#include "model/project/projectdocument.h"

#include <algorithm>

namespace {

QString newerVersionOf(const ProjectDocument &document)
{
    const QString text = document.fileVersion.value_or(QString());
    if (text.toInt() > ProjectDocument::kFileVersion)
        return text;
    return document.rest.numericVersion > ProjectDocument::kFileVersion ? QString::number(document.rest.numericVersion)
                                                                        : QString();
}

void addNames(NameList &list, const UnknownMembers &members, const QString &object)
{
    for (const UnknownMember &member : members)
        list.add(object + member.name);
}

} // namespace

bool OpenLosses::isAny() const
{
    const auto isHidden = [](PictureState state) {
        return state == PictureState::TooLarge || state == PictureState::Undecodable;
    };
    return !newerVersion.isEmpty() || isForeign || unknown.count > 0 || lost.count > 0
           || std::any_of(pictures.begin(), pictures.end(), isHidden) || meta == MetaState::Damaged
           || meta == MetaState::Newer;
}

OpenLosses lossesOf(const ProjectDocument &document, const ImageStore &images)
{
    OpenLosses losses;
    losses.newerVersion = newerVersionOf(document);
    losses.isForeign = !document.rest.hasKnownKey;
    addNames(losses.unknown, document.rest.unknown, QString());
    addNames(losses.unknown, document.viewData.unknown, QStringLiteral("ViewData/"));
    losses.lost = document.rest.lost;
    for (int image = 0; image < kNumProjectImages; ++image)
        losses.pictures[static_cast<std::size_t>(image)] = images.state(image);
    return losses;
}
