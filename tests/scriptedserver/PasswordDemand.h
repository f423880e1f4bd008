#pragma once

#include "tests/scriptedserver/ScriptedServer.h"

enum class PasswordScheme { Basic, Digest };

/// The script of a server that lets nobody through to the one on this port of the loopback who does
/// not say for each request who he is. A digest holds for the request that it was made for alone.
Script passwordDemand(PasswordScheme scheme, const QByteArray &user, const QByteArray &password,
                      int port);
