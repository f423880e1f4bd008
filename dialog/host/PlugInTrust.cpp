#include "dialog/host/PlugInTrust.h"

#include <QtCore/QByteArray>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <array>
#include <grp.h>
#include <optional>
#include <pwd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t kMostEntryBytes = 64UL * 1024;
using EntryBuffer = std::array<char, kMostEntryBytes>;

QByteArray nameOfUserWithPrimaryGroup(uid_t user, gid_t group)
{
    EntryBuffer buffer;
    passwd entry = {};
    passwd *found = nullptr;
    getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    return found && found->pw_gid == group ? QByteArray(found->pw_name) : QByteArray();
}

// As systems make one for each user: it is their primary group, has their name, and names nobody
// else as a member. (Who else has it for a primary group cannot be asked.)
bool isPrivateGroup(gid_t group, uid_t owner)
{
    const QByteArray name = nameOfUserWithPrimaryGroup(owner, group);
    EntryBuffer buffer;
    ::group entry = {};
    ::group *found = nullptr;
    getgrgid_r(group, &entry, buffer.data(), buffer.size(), &found);
    if (name.isEmpty() || !found || name != found->gr_name)
        return false;
    for (char **member = found->gr_mem; *member; ++member) {
        if (name != *member)
            return false;
    }
    return true;
}

std::optional<FileRights> rightsOf(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    const bool asksForGroup = (status.st_mode & S_IWGRP) != 0;
    return FileRights{status.st_uid, asksForGroup && isPrivateGroup(status.st_gid, status.st_uid),
                      status.st_mode};
}

/// The bundle's views, pictures and texts, and their folders.
QStringList resourcesOf(const QString &bundle)
{
    const QString resources = bundle + u"/Resources"_s;
    QStringList paths;
    if (QFileInfo::exists(resources))
        paths += resources;
    QDirIterator entries(resources, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        paths += entries.next();
    return paths;
}

} // namespace

bool mayBeChangedByOthers(const FileRights &rights, uid_t user)
{
    const bool trustsOwner = rights.owner == 0 || rights.owner == user;
    const bool trustsGroup = (rights.mode & S_IWGRP) == 0 || rights.privateGroup;
    return !trustsOwner || !trustsGroup || (rights.mode & S_IWOTH) != 0;
}

bool mayBeRefilledByOthers(const FileRights &rights, uid_t user)
{
    const bool keepsEntries = (rights.mode & S_ISVTX) != 0;
    FileRights asked = rights;
    if (keepsEntries)
        asked.mode &= ~static_cast<mode_t>(S_IWGRP | S_IWOTH);
    return mayBeChangedByOthers(asked, user);
}

QString placeOpenToOthers(const QString &bundlePath, const QString &library)
{
    const QString bundle = QFileInfo(bundlePath).canonicalFilePath();
    const QString code = QFileInfo(library).canonicalFilePath();
    const QStringList own{code, QFileInfo(code).path(), bundle, bundle + u"/Info.json"_s};
    for (const QString &path : own + resourcesOf(bundle)) {
        const auto rights = rightsOf(path);
        if (!rights || mayBeChangedByOthers(*rights, geteuid()))
            return path;
    }
    const QString folder = QFileInfo(bundle).path();
    const auto rights = rightsOf(folder);
    return rights && !mayBeRefilledByOthers(*rights, geteuid()) ? QString() : folder;
}
