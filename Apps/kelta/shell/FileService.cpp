#include "kelta/FileService.h"

#include <utility>

namespace desktop {

namespace {

std::unique_ptr<FileService>& theService()
{
    static std::unique_ptr<FileService> service;
    return service;
}

} // namespace

FileService::~FileService() = default;

FileService* FileService::instance()
{
    return theService().get();
}

void FileService::setInstance(std::unique_ptr<FileService> service)
{
    theService() = std::move(service);
}

} // namespace desktop
