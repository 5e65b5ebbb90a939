#include "WFVariant.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>

#ifdef __linux__
#include <sys/mman.h>
#endif

/// Text that only grows. Large buffers live in their own mapping and grow with mremap, which
/// moves pages instead of copying them: a variable holding a 50 MB listing never needs the old
/// and the new copy at once.
class TWFTextBuffer {
public:
    explicit TWFTextBuffer(std::string_view text) { append(text); }
    ~TWFTextBuffer() { release(); }
    TWFTextBuffer(const TWFTextBuffer&) = delete;
    TWFTextBuffer& operator=(const TWFTextBuffer&) = delete;

    const char* data() const { return m_data ? m_data : ""; }
    std::size_t size() const { return m_size; }
    void append(std::string_view text)
    {
        if (text.empty())
            return;
        if (m_size + text.size() > m_capacity)
            grow(m_size + text.size());
        std::memcpy(m_data + m_size, text.data(), text.size());
        m_size += text.size();
    }

private:
    static constexpr std::size_t kMapThreshold = 1u << 20;

    void grow(std::size_t needed)
    {
        std::size_t capacity = m_capacity ? m_capacity : 64;
        while (capacity < needed)
            capacity += capacity / 2 + 64;
#ifdef __linux__
        if (capacity >= kMapThreshold) {
            capacity = (capacity + 4095) & ~std::size_t(4095);
            void* grown = m_mapped ? ::mremap(m_data, m_capacity, capacity, MREMAP_MAYMOVE)
                                   : ::mmap(nullptr, capacity, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
            if (grown == MAP_FAILED)
                throw std::bad_alloc();
            if (!m_mapped && m_data) {
                std::memcpy(grown, m_data, m_size);
                std::free(m_data);
            }
            m_data = static_cast<char*>(grown);
            m_capacity = capacity;
            m_mapped = true;
            return;
        }
#endif
        void* grown = std::realloc(m_data, capacity);
        if (!grown)
            throw std::bad_alloc();
        m_data = static_cast<char*>(grown);
        m_capacity = capacity;
    }

    void release()
    {
#ifdef __linux__
        if (m_mapped) {
            ::munmap(m_data, m_capacity);
            return;
        }
#endif
        std::free(m_data);
    }

    char* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
    bool m_mapped = false;
};

TWFVariant::TWFVariant(std::string_view text)
    : m_type(Type::String), m_buffer(std::make_shared<TWFTextBuffer>(text)), m_length(text.size())
{
}

TWFVariant TWFVariant::FromObject(TZTXMLObject* object)
{
    TWFVariant result;
    result.m_type = Type::Object;
    result.m_object = object;
    return result;
}

std::string_view TWFVariant::stringView() const
{
    if (m_type != Type::String)
        return {};
    return std::string_view(m_buffer->data(), m_length);
}

std::string TWFVariant::toString() const
{
    switch (m_type) {
    case Type::String:
        return std::string(stringView());
    case Type::Integer:
        return std::to_string(m_integer);
    case Type::Boolean:
        return m_boolean ? "True" : "False";
    case Type::Object:
    case Type::Empty:
        break;
    }
    return {};
}

long long TWFVariant::toInteger() const
{
    switch (m_type) {
    case Type::Integer:
        return m_integer;
    case Type::Boolean:
        return m_boolean ? 1 : 0;
    case Type::String: {
        long long value = 0;
        const auto text = stringView();
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    default:
        return 0;
    }
}

bool TWFVariant::toBoolean() const
{
    switch (m_type) {
    case Type::Boolean:
        return m_boolean;
    case Type::Integer:
        return m_integer != 0;
    case Type::String: {
        const auto text = stringView();
        return text.size() == 4 && (text[0] == 'T' || text[0] == 't') && (text[1] | 0x20) == 'r'
            && (text[2] | 0x20) == 'u' && (text[3] | 0x20) == 'e';
    }
    default:
        return false;
    }
}

TWFVariant operator+(const TWFVariant& left, const TWFVariant& right)
{
    using Type = TWFVariant::Type;
    if (left.m_type == Type::Integer && right.m_type == Type::Integer)
        return TWFVariant(left.m_integer + right.m_integer);
    if (left.m_type == Type::Boolean && right.m_type == Type::Boolean)
        return TWFVariant(left.m_boolean || right.m_boolean);

    const std::string rightText = right.m_type == Type::String ? std::string() : right.toString();
    const std::string_view tail = right.m_type == Type::String ? right.stringView() : std::string_view(rightText);

    // Appending in place is safe: every other holder of the buffer sees only its own prefix.
    if (left.m_type == Type::String && left.m_length == left.m_buffer->size()
        && left.m_buffer != right.m_buffer) {
        TWFVariant result = left;
        result.m_buffer->append(tail);
        result.m_length = result.m_buffer->size();
        return result;
    }
    std::string joined = left.toString();
    joined.append(tail);
    return TWFVariant(std::string_view(joined));
}

bool operator==(const TWFVariant& left, const TWFVariant& right)
{
    if (left.m_type != right.m_type)
        return false;
    switch (left.m_type) {
    case TWFVariant::Type::String:
        return left.stringView() == right.stringView();
    case TWFVariant::Type::Integer:
        return left.m_integer == right.m_integer;
    case TWFVariant::Type::Boolean:
        return left.m_boolean == right.m_boolean;
    case TWFVariant::Type::Object:
        return left.m_object == right.m_object;
    case TWFVariant::Type::Empty:
        return true;
    }
    return false;
}
