#include "Obj/ContentCodec.h"

#include <map>
#include <utility>

namespace Obj {

namespace {

template <typename Codec>
using Codecs = std::map<std::string, Codec, std::less<>>;

Codecs<ContentCodec>& contentCodecs()
{
    static Codecs<ContentCodec> codecs;
    return codecs;
}

Codecs<ProjectCodec>& projectCodecs()
{
    static Codecs<ProjectCodec> codecs;
    return codecs;
}

template <typename Codec>
const Codec* findNearest(const Codecs<Codec>& codecs, Kelta::TypeInfo type)
{
    for (; type.namesAType(); type = type.getParent())
        if (const auto found = codecs.find(type.get_name()); found != codecs.end())
            return &found->second;
    return nullptr;
}

} // namespace

void registerContentCodec(const std::string& className, ContentCodec codec)
{
    contentCodecs()[className] = std::move(codec);
}

void registerProjectCodec(const std::string& className, ProjectCodec codec)
{
    projectCodecs()[className] = std::move(codec);
}

const ContentCodec* findContentCodec(Kelta::TypeInfo type)
{
    return findNearest(contentCodecs(), type);
}

const ProjectCodec* findProjectCodec(Kelta::TypeInfo type)
{
    return findNearest(projectCodecs(), type);
}

} // namespace Obj
