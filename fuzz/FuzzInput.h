#pragma once

#include <QString>
#include <QVariant>

#include <cstddef>
#include <cstdint>

// Turns libFuzzer's bytes into the shapes the plug-in receives: text (bytes as UTF-8, so invalid
// sequences arrive as replacement characters exactly as they would from the host) and arbitrary variant
// trees (any XML the fuzzer writes, read through XML2Json, gives nested maps, lists and strings).
class FuzzInput
{
public:
    FuzzInput(const uint8_t* data, size_t size);

    bool atEnd() const { return m_position >= m_size; }
    // One byte as a small choice, 0 when the input is used up.
    int choice(int count);
    // Text up to the next "\x01" separator (or the end).
    QString text();
    // A variant of a shape picked by the input: invalid, text, number, list, or a tree read from text.
    QVariant variant();

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_position = 0;
};
