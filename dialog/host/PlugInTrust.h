#pragma once

#include <QtCore/QString>

#include <sys/stat.h>

// A plug-in's code runs as the user: nobody else may be able to change it. Trusted are the user and
// the administrator, and a group only where it is its owner's private one.

/// Who may change a file or folder.
struct FileRights
{
    uid_t owner = 0;
    bool privateGroup = false; ///< whether nobody but the owner is in its group
    mode_t mode = 0;           ///< with the type of the file
};

/// Whether somebody else than `user` and the administrator may change it.
bool mayBeChangedByOthers(const FileRights &rights, uid_t user);

/// Whether somebody else may put other entries in the place of those of this folder. They may not
/// in a folder like /tmp, where everybody may write and take away nothing but what is their own.
bool mayBeRefilledByOthers(const FileRights &rights, uid_t user);

/// The first of the bundle's library, its folder, the bundle's folder, its information, its
/// resources (a view says which operations its controls call), and the folder that holds the
/// bundle, which somebody else than the user of this process may change; null when there is none.
/// Links are followed. What cannot be looked at counts as one, but a bundle may be without
/// resources.
QString placeOpenToOthers(const QString &bundlePath, const QString &library);
