#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <span>

/// What a member of an event must be.
enum class FieldType {
    Text,
    TextOrNull,
    Number,
    NumberOrNull,
    Boolean,
    Object,
    TextList,
    TextMap,           ///< an object of strings
    BooleanMap,        ///< an object of booleans
    TicketMap,         ///< an object of strings, numbers and booleans
    TicketValueOrNull, ///< a string, a number, a boolean or null
    Paper,
    StringsSource, ///< "bundle" or "keys"
    LackingList,   ///< a list of optional operations of the host
    AnswerList,
};

/// A member that an event may or must have.
struct ScriptField
{
    const char *name;
    FieldType type;
    bool required = true;
};

/// What is wrong with the members of the object, as one sentence about the first that is missing or
/// of the wrong type; null when nothing is. Members that the list does not name are passed over.
QString checkFields(const QJsonObject &object, std::span<const ScriptField> fields);
