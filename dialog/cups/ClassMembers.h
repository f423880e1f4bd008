#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

#include <cups/ipp.h>

class ServerConnection;

/// A queue to which the jobs of a class go.
struct ClassMember
{
    QString queue;
    QString model; ///< maker and model for people

    bool operator==(const ClassMember &) const = default;
};

/// The members of a class, out of its attributes and what the server says of them; none for a
/// printer, for a class of one, and where the server cannot be asked. Blocks.
QList<ClassMember> classMembers(ipp_t *printer, ServerConnection &connection);

/// Whether they are of different models: what is set for one may be nothing to another.
bool areOfDifferentModels(const QList<ClassMember> &members);
