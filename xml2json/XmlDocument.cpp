#include "XmlDocument.h"

#include "XmlNameCharacters.h"

#include <QHash>
#include <QVariantList>
#include <QVariantMap>

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace {

bool isXmlCharacter(char32_t c)
{
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) || (c >= 0xE000 && c <= 0xFFFD)
           || (c >= 0x10000 && c <= 0x10FFFF);
}

// Every character XML allows, and surrogates only in pairs.
bool hasOnlyXmlCharacters(const QString& xml)
{
    const char16_t* text = reinterpret_cast<const char16_t*>(xml.utf16());
    const qsizetype size = xml.size();
    // Of the control characters, tab, line feed and carriage return (bits 9, 10 and 13) are allowed.
    constexpr quint32 allowedControls = (1u << 0x9) | (1u << 0xA) | (1u << 0xD);
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = text[i];
        if (unsigned(c) - 0x20u < 0xD800u - 0x20u)
            continue; // printable and below the surrogates: nearly every character
        if (c < 0x20) {
            if (!((allowedControls >> c) & 1u))
                return false;
        } else if (c >= 0xD800) {
            if (c <= 0xDBFF) {
                if (i + 1 == size || text[i + 1] < 0xDC00 || text[i + 1] > 0xDFFF)
                    return false;
                ++i;
            } else if (c <= 0xDFFF || c == 0xFFFE || c == 0xFFFF) {
                return false;
            }
        }
    }
    return true;
}

// What the raw checks stop at: markup, references and a possible "]]>" in content (bit 0); the characters
// of an ASCII name (bit 1), of which those that may also start one (bit 2).
constexpr std::array<unsigned char, 256> characterClasses = [] {
    std::array<unsigned char, 256> classes{};
    classes['<'] = classes['&'] = classes[']'] = 1;
    for (int c = 0; c < 128; ++c) {
        const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
        if (isLetter)
            classes[size_t(c)] |= 2 | 4;
        else if ((c >= '0' && c <= '9') || c == '-' || c == '.')
            classes[size_t(c)] |= 2;
    }
    return classes;
}();

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// A check of the raw text for what well-formed XML forbids and pugixml lets through. It runs on text
// pugixml has not read yet, and only answers yes or no; pugixml still checks the element structure.
class WellFormedness
{
public:
    WellFormedness(const char* text, size_t size)
        : m_text(text)
        , m_size(size)
    {
    }

    bool check()
    {
        if (startsWith("<?xml") && m_size > 5 && isSpace(m_text[5]) && !declaration())
            return false;
        while (m_at < m_size) {
            const char* next = nextSpecial(m_text + m_at, m_text + m_size);
            m_at = size_t(next - m_text);
            if (m_at == m_size)
                break;
            bool isGood = true;
            switch (*next) {
            case '<':
                isGood = markup();
                break;
            case '&':
                isGood = reference();
                break;
            default: // ']'
                isGood = !startsWith("]]>");
                ++m_at;
                break;
            }
            if (!isGood)
                return false;
        }
        return true;
    }

private:
    static const char* nextSpecial(const char* from, const char* end)
    {
        while (from != end && !(characterClasses[static_cast<unsigned char>(*from)] & 1))
            ++from;
        return from;
    }

    bool startsWith(std::string_view prefix) const
    {
        return m_size - m_at >= prefix.size() && std::memcmp(m_text + m_at, prefix.data(), prefix.size()) == 0;
    }

    size_t find(std::string_view what, size_t from) const
    {
        const std::string_view rest(m_text + from, m_size - from);
        const size_t found = rest.find(what);
        return found == std::string_view::npos ? std::string_view::npos : from + found;
    }

    // The next code point of valid UTF-8 (QString::toUtf8 wrote it), or 0 at the end.
    char32_t peekCodePoint(size_t& length) const
    {
        if (m_at >= m_size) {
            length = 0;
            return 0;
        }
        const auto* p = reinterpret_cast<const unsigned char*>(m_text + m_at);
        const size_t left = m_size - m_at;
        if (p[0] < 0x80) {
            length = 1;
            return p[0];
        }
        if (p[0] < 0xE0 && left >= 2) {
            length = 2;
            return char32_t(p[0] & 0x1F) << 6 | (p[1] & 0x3F);
        }
        if (p[0] < 0xF0 && left >= 3) {
            length = 3;
            return char32_t(p[0] & 0x0F) << 12 | char32_t(p[1] & 0x3F) << 6 | (p[2] & 0x3F);
        }
        if (left >= 4) {
            length = 4;
            return char32_t(p[0] & 0x07) << 18 | char32_t(p[1] & 0x3F) << 12 | char32_t(p[2] & 0x3F) << 6
                   | (p[3] & 0x3F);
        }
        length = 1;
        return 0xFFFE; // broken off: not a name character
    }

    // A name with at most one prefix ("a" or "p:a"), as Qt's reader wants it even without namespaces.
    bool name()
    {
        if (!unprefixedName())
            return false;
        if (m_at < m_size && m_text[m_at] == ':') {
            ++m_at;
            return unprefixedName();
        }
        return true;
    }

    bool unprefixedName()
    {
        // Names in server documents are ASCII; other characters take the decoding path.
        const size_t start = m_at;
        const auto* text = reinterpret_cast<const unsigned char*>(m_text);
        for (unsigned char wanted = 4;; wanted = 2) {
            size_t at = m_at;
            while (at < m_size && (characterClasses[text[at]] & wanted)) {
                ++at;
                wanted = 2;
            }
            m_at = at;
            if (m_at == m_size || text[m_at] < 0x80)
                break;
            size_t length = 0;
            const char32_t codePoint = peekCodePoint(length);
            if (!(m_at == start ? XmlNameCharacters::isNameStart(codePoint) : XmlNameCharacters::isNameCharacter(codePoint)))
                break;
            m_at += length;
        }
        return m_at != start;
    }

    static std::string lowerAscii(std::string_view text)
    {
        std::string lower(text);
        std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return char(std::tolower(c)); });
        return lower;
    }

    // After an attribute's name: blanks, "=", blanks and the quote that opens its value, which is
    // returned (the position is then past it); 0 if any of them is missing.
    char openingQuote()
    {
        skipSpaces();
        if (m_at >= m_size || m_text[m_at] != '=')
            return 0;
        ++m_at;
        skipSpaces();
        if (m_at >= m_size || (m_text[m_at] != '"' && m_text[m_at] != '\''))
            return 0;
        return m_text[m_at++];
    }

    bool skipSpaces()
    {
        const size_t start = m_at;
        while (m_at < m_size && isSpace(m_text[m_at]))
            ++m_at;
        return m_at != start;
    }

    // "&amp;" and its four kin, or a character reference to a character XML allows.
    bool reference()
    {
        ++m_at;
        if (m_at < m_size && m_text[m_at] == '#') {
            ++m_at;
            const bool isHex = m_at < m_size && m_text[m_at] == 'x';
            if (isHex)
                ++m_at;
            char32_t value = 0;
            size_t digits = 0;
            for (; m_at < m_size && m_text[m_at] != ';'; ++m_at, ++digits) {
                const char c = m_text[m_at];
                int digit = -1;
                if (c >= '0' && c <= '9')
                    digit = c - '0';
                else if (isHex && c >= 'a' && c <= 'f')
                    digit = c - 'a' + 10;
                else if (isHex && c >= 'A' && c <= 'F')
                    digit = c - 'A' + 10;
                if (digit < 0)
                    return false;
                value = std::min<char32_t>(value * (isHex ? 16 : 10) + char32_t(digit), 0x110000);
            }
            if (m_at == m_size || digits == 0 || !isXmlCharacter(value))
                return false;
            ++m_at;
            return true;
        }
        for (std::string_view entity : {"amp;", "lt;", "gt;", "quot;", "apos;"}) {
            if (startsWith(entity)) {
                m_at += entity.size();
                return true;
            }
        }
        return false;
    }

    // <?xml version="1.0" encoding="..." standalone="..."?> at the very start.
    bool declaration()
    {
        m_at = 5;
        skipSpaces(); // the caller saw at least one
        const auto pseudoAttribute = [this](std::string_view pseudoName, auto isGoodValue) {
            if (!startsWith(pseudoName))
                return false;
            m_at += pseudoName.size();
            const char quote = openingQuote();
            if (!quote)
                return false;
            const size_t end = find(std::string_view(&quote, 1), m_at);
            if (end == std::string_view::npos || !isGoodValue(std::string_view(m_text + m_at, end - m_at)))
                return false;
            m_at = end + 1;
            return true;
        };
        if (!pseudoAttribute("version", [](std::string_view value) { return value == "1.0"; }))
            return false;
        bool hasSpace = skipSpaces();
        if (hasSpace && startsWith("encoding")) {
            const bool isKnown = pseudoAttribute("encoding", [](std::string_view value) {
                const std::string lower = lowerAscii(value);
                return lower == "utf-8" || lower == "utf-16" || lower == "iso-8859-1" || lower == "us-ascii";
            });
            if (!isKnown)
                return false;
            hasSpace = skipSpaces();
        }
        if (hasSpace && startsWith("standalone")) {
            if (!pseudoAttribute("standalone", [](std::string_view value) { return value == "yes" || value == "no"; }))
                return false;
            skipSpaces();
        }
        if (!startsWith("?>"))
            return false;
        m_at += 2;
        return true;
    }

    bool markup()
    {
        const char kind = m_at + 1 < m_size ? m_text[m_at + 1] : '\0';
        if (kind == '!') {
            if (startsWith("<!--")) {
                // "--" may only close a comment.
                const size_t dashes = find("--", m_at + 4);
                if (dashes == std::string_view::npos || dashes + 2 >= m_size || m_text[dashes + 2] != '>')
                    return false;
                m_at = dashes + 3;
                return true;
            }
            if (startsWith("<![CDATA[")) {
                const size_t end = find("]]>", m_at + 9);
                if (end == std::string_view::npos)
                    return false;
                m_at = end + 3;
                return true;
            }
            return false; // DOCTYPE and declarations
        }
        if (kind == '?')
            return processingInstruction();
        if (kind == '/') {
            m_at += 2;
            if (!name())
                return false;
            skipSpaces();
            if (m_at >= m_size || m_text[m_at] != '>')
                return false;
            ++m_at;
            --m_depth;
            return true;
        }
        return startTag();
    }

    bool processingInstruction()
    {
        m_at += 2;
        const size_t targetStart = m_at;
        if (!unprefixedName())
            return false;
        if (lowerAscii(std::string_view(m_text + targetStart, m_at - targetStart)) == "xml")
            return false; // a declaration anywhere but at the start
        if (!startsWith("?>") && !skipSpaces())
            return false;
        const size_t end = find("?>", m_at);
        if (end == std::string_view::npos)
            return false;
        m_at = end + 2;
        return true;
    }

    bool startTag()
    {
        ++m_at;
        if (!name())
            return false;
        m_attributeNames.clear();
        if (!m_attributeSet.empty())
            m_attributeSet.clear();
        for (;;) {
            const bool hasSpace = skipSpaces();
            if (m_at >= m_size)
                return false;
            if (m_text[m_at] == '>') {
                ++m_at;
                if (++m_depth > XmlDocument::maxDepth)
                    return false;
                return true;
            }
            if (startsWith("/>")) {
                m_at += 2;
                return m_depth < XmlDocument::maxDepth;
            }
            if (!hasSpace || !attribute())
                return false;
        }
    }

    bool attribute()
    {
        const size_t nameStart = m_at;
        if (!name())
            return false;
        const std::string_view attributeName(m_text + nameStart, m_at - nameStart);
        if (!isNewAttribute(attributeName))
            return false;
        const char quote = openingQuote();
        if (!quote)
            return false;
        while (m_at < m_size && m_text[m_at] != quote) {
            if (m_text[m_at] == '<')
                return false;
            if (m_text[m_at] == '&') {
                if (!reference())
                    return false;
            } else {
                ++m_at;
            }
        }
        if (m_at == m_size)
            return false;
        ++m_at;
        return true;
    }

    // A tag has a handful of attributes; only a flood of them is worth a hash.
    bool isNewAttribute(std::string_view attributeName)
    {
        if (!m_attributeSet.empty())
            return m_attributeSet.insert(attributeName).second;
        if (std::find(m_attributeNames.begin(), m_attributeNames.end(), attributeName) != m_attributeNames.end())
            return false;
        m_attributeNames.push_back(attributeName);
        if (m_attributeNames.size() > 16)
            m_attributeSet.insert(m_attributeNames.begin(), m_attributeNames.end());
        return true;
    }

    const char* m_text;
    size_t m_size;
    size_t m_at = 0;
    int m_depth = 0;
    std::vector<std::string_view> m_attributeNames;
    std::unordered_set<std::string_view> m_attributeSet;
};

// A finished child waiting for its parent to finish.
struct Child
{
    QString name;
    QVariant value;
};

// One open element: where its children start in the shared child buffer, and its text so far. The walk
// keeps its own stack, so document depth never reaches the call stack.
struct Frame
{
    pugi::xml_node node;
    pugi::xml_node nextChild;
    size_t firstChild;
    QString text;
};

// Above this many children of one element, repeated tags are gathered through a hash.
constexpr std::ptrdiff_t manySiblings = 64;

// The text pugixml keeps as the element's value.
QString leadingText(const pugi::xml_node& element)
{
    const char* text = element.value();
    return *text ? QString::fromUtf8(text) : QString();
}

bool isText(const pugi::xml_node& node)
{
    return node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata;
}

} // namespace

// Tag and attribute names repeat thousands of times in an alarm list; handing out shared copies of one
// QString per name saves an allocation per key.
class XmlDocument::Names
{
public:
    const QString& name(const char* utf8) { return intern(utf8, m_names, {}); }
    const QString& attributeName(const char* utf8) { return intern(utf8, m_attributeNames, QStringLiteral("@")); }

private:
    static const QString& intern(const char* utf8, std::unordered_map<std::string_view, QString>& table,
                                 const QString& prefix)
    {
        const std::string_view key(utf8);
        auto it = table.find(key);
        if (it == table.end())
            it = table.emplace(key, prefix + QString::fromUtf8(utf8, qsizetype(key.size()))).first;
        return it->second;
    }

    // Keys point into the parsed document, which outlives the table.
    std::unordered_map<std::string_view, QString> m_names;
    std::unordered_map<std::string_view, QString> m_attributeNames;
};

XmlDocument::XmlDocument(const QString& xml)
    : m_names(std::make_unique<Names>())
{
    if (xml.isEmpty() || !hasOnlyXmlCharacters(xml))
        return;
    m_utf8 = xml.toUtf8();
    if (!WellFormedness(m_utf8.constData(), size_t(m_utf8.size())).check())
        return;

    // As a fragment, stray text beside the root shows up as a node we can reject instead of being skipped.
    // The terminating NUL goes in too, so that pugixml gives up no character of the document to its own.
    // An element's leading text is kept as the element's value instead of a node of its own, which halves
    // the nodes of a typical list.
    const unsigned options = pugi::parse_default | pugi::parse_doctype | pugi::parse_fragment | pugi::parse_comments
                             | pugi::parse_pi | pugi::parse_embed_pcdata;
    const pugi::xml_parse_result result =
        m_document.load_buffer_inplace(m_utf8.data(), size_t(m_utf8.size()) + 1, options, pugi::encoding_utf8);
    if (!result)
        return;

    pugi::xml_node root;
    for (pugi::xml_node node = m_document.first_child(); node; node = node.next_sibling()) {
        switch (node.type()) {
        case pugi::node_element:
            if (root)
                return;
            root = node;
            break;
        case pugi::node_doctype:
        case pugi::node_pcdata:
        case pugi::node_cdata:
            return;
        default:
            break;
        }
    }
    m_root = root;
}

XmlDocument::~XmlDocument() = default;

const QString& XmlDocument::nameOf(const pugi::xml_node& element)
{
    return m_names->name(element.name());
}

// Repeated tags are gathered into one list built in place, so thousands of siblings stay linear instead
// of re-copying a list out of a QVariant on every append.
static QVariant finishElement(Frame& frame, std::vector<Child>& children, XmlDocument::Names& names)
{
    const pugi::xml_node& node = frame.node;
    const auto begin = children.begin() + std::ptrdiff_t(frame.firstChild);
    const auto end = children.end();
    if (!node.first_attribute() && begin == end)
        return QVariant(std::move(frame.text));

    QVariantMap map;
    if (end - begin > manySiblings) {
        // The pass below compares each sibling with every later one; thousands of distinct tags (which no
        // server document has, but a hostile one may) would make it quadratic, so many are grouped by hash.
        QHash<QString, QVariantList> groups;
        groups.reserve(qsizetype(end - begin));
        for (auto child = begin; child != end; ++child)
            groups[child->name].append(std::move(child->value));
        for (auto group = groups.begin(); group != groups.end(); ++group)
            map.insert(group.key(), group->size() == 1 ? std::move(group->first()) : QVariant(std::move(*group)));
    } else {
        for (auto child = begin; child != end; ++child) {
            if (child->name.isNull())
                continue; // already gathered into an earlier sibling's list
            auto repeat =
                std::find_if(child + 1, end, [&](const Child& other) { return other.name == child->name; });
            if (repeat == end) {
                map.insert(child->name, std::move(child->value));
                continue;
            }
            QVariantList list{std::move(child->value)};
            for (; repeat != end; ++repeat) {
                if (repeat->name == child->name) {
                    list.append(std::move(repeat->value));
                    repeat->name = QString();
                }
            }
            map.insert(child->name, QVariant(std::move(list)));
        }
    }
    children.erase(begin, end);

    for (pugi::xml_attribute attribute = node.first_attribute(); attribute; attribute = attribute.next_attribute())
        map.insert(names.attributeName(attribute.name()), QString::fromUtf8(attribute.value()));
    if (!frame.text.trimmed().isEmpty())
        map.insert(QStringLiteral("#text"), frame.text);
    return map;
}

QVariant XmlDocument::valueOf(const pugi::xml_node& element)
{
    std::vector<Child> children;
    std::vector<Frame> stack;
    stack.push_back(Frame{element, element.first_child(), 0, leadingText(element)});
    for (;;) {
        Frame& top = stack.back();
        if (top.nextChild) {
            const pugi::xml_node child = top.nextChild;
            top.nextChild = child.next_sibling();
            if (child.type() == pugi::node_element)
                stack.push_back(Frame{child, child.first_child(), children.size(), leadingText(child)});
            else if (isText(child))
                top.text += QString::fromUtf8(child.value());
            continue;
        }
        QVariant value = finishElement(top, children, *m_names);
        if (stack.size() == 1)
            return value;
        const QString& name = m_names->name(top.node.name());
        stack.pop_back();
        children.push_back(Child{name, std::move(value)});
    }
}
