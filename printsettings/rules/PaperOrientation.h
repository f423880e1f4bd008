#pragma once

#include <QtCore/QString>

/// What the check of paper and orientation does with a paper of this name.
enum class OrientationCheck {
    ConfirmEnvelope, ///< the user confirms how the envelope is loaded
    Landscape,
    Portrait,
    Refuse, ///< the printer does not take it
    BySize, ///< the name says nothing: by its size (CustomSizes.h)
};
OrientationCheck orientationCheck(const QString &paperName);
