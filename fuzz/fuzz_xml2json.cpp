#include "XML2Json.h"

#include <QString>

#include <cstddef>
#include <cstdint>

namespace {
// Visits the whole tree the way the codecs read it, without recursion, so a bad tree shows up here.
size_t walk(const QVariant& root)
{
    size_t visited = 0;
    QVariantList pending{root};
    while (!pending.isEmpty()) {
        const QVariant value = pending.takeLast();
        ++visited;
        if (value.typeId() == QMetaType::QVariantMap) {
            const QVariantMap map = value.toMap();
            for (auto it = map.cbegin(); it != map.cend(); ++it)
                pending.append(XML2Json::transContentAsList(it.value()));
        } else if (value.typeId() == QMetaType::QVariantList) {
            pending.append(value.toList());
        }
    }
    return visited;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    const QVariant tree = XML2Json::parse(text);
    if (tree.isValid() && tree.toMap().size() != 1)
        __builtin_trap(); // a valid tree always has exactly its root
    walk(tree);
    return 0;
}
