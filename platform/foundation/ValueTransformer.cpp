#include "platform/foundation/ValueTransformer.h"

#include <QtCore/QHash>

#include <utility>

namespace {

using Registry = QHash<QString, std::shared_ptr<const ValueTransformer>>;

Registry &registry()
{
    static Registry transformers;
    return transformers;
}

} // namespace

void ValueTransformer::setValueTransformer(std::shared_ptr<const ValueTransformer> transformer,
                                           const QString &forName)
{
    registry()[forName] = std::move(transformer);
}

std::shared_ptr<const ValueTransformer>
ValueTransformer::valueTransformerForName(const QString &name)
{
    return registry().value(name);
}
