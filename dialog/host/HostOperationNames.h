#pragma once

#include "platform/pde/PDEPluginCallback.h"

#include <optional>

/// The optional callback operation of the name that scripts use; none for another name.
std::optional<HostOperation> hostOperationNamed(const QString &name);

/// The name that scripts use.
QString nameOf(HostOperation operation);
