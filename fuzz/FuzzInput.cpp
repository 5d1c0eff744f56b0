#include "FuzzInput.h"

#include "XML2Json.h"

FuzzInput::FuzzInput(const uint8_t* data, size_t size)
    : m_data(data)
    , m_size(size)
{
}

int FuzzInput::choice(int count)
{
    if (atEnd() || count <= 0)
        return 0;
    return m_data[m_position++] % count;
}

QString FuzzInput::text()
{
    const size_t start = m_position;
    while (m_position < m_size && m_data[m_position] != 0x01)
        ++m_position;
    const QString result = QString::fromUtf8(reinterpret_cast<const char*>(m_data + start), qsizetype(m_position - start));
    if (m_position < m_size)
        ++m_position; // the separator
    return result;
}

QVariant FuzzInput::variant()
{
    switch (choice(6)) {
    case 0:
        return QVariant();
    case 1:
        return text();
    case 2:
        return choice(256) - 128;
    case 3: {
        QVariantList list;
        const int count = choice(4);
        for (int i = 0; i < count; ++i)
            list.append(variant());
        return list;
    }
    default: {
        // The root's content: nested maps, lists and strings in whatever shape the text makes.
        const QVariantMap document = XML2Json::parse(text()).toMap();
        return document.isEmpty() ? QVariant() : document.first();
    }
    }
}
