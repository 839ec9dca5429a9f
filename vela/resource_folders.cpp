#include "vela/resource_folders.h"

#include <cassert>
#include <utility>

namespace vela {
namespace {

struct Setting {
    ResourceFolders folders;
    bool made = false;
};

Setting& setting()
{
    static Setting value;
    return value;
}

} // namespace

void setResourceFolders(ResourceFolders folders)
{
    assert(!setting().made);
    setting() = {std::move(folders), true};
}

const ResourceFolders& resourceFolders()
{
    assert(setting().made);
    return setting().folders;
}

} // namespace vela
