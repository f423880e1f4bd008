#include "dialog/work/Secret.h"

#include <cstring>
#include <mutex>
#include <sys/prctl.h>
#include <type_traits>
#include <vector>

namespace {

std::mutex s_mutex; // guards what follows
int s_count = 0;    // of the places that there are
int s_before = 1;   // what the process was before the first of them

void noteOne()
{
    const std::lock_guard lock(s_mutex);
    if (s_count++ == 0) {
        s_before = prctl(PR_GET_DUMPABLE);
        prctl(PR_SET_DUMPABLE, 0);
    }
}

void forgetOne()
{
    const std::lock_guard lock(s_mutex);
    if (--s_count == 0)
        prctl(PR_SET_DUMPABLE, s_before);
}

/// Clears the text's memory, and not that of a copy, which data() would make. A literal has none of
/// its own.
template <typename Text> void wipe(Text &text)
{
    auto *memory =
        const_cast<std::remove_const_t<std::remove_pointer_t<decltype(text.constData())>> *>(
            text.constData());
    if (text.data_ptr().isMutable())
        explicit_bzero(memory, static_cast<std::size_t>(text.size()) * sizeof *memory);
    text.clear();
}

} // namespace

class Secret::Place
{
public:
    /// A byte array has a zero behind its end.
    explicit Place(const QByteArray &text)
        : m_text(text.constData(), text.constData() + text.size() + 1)
    {
        noteOne();
    }
    ~Place()
    {
        explicit_bzero(m_text.data(), m_text.size());
        forgetOne();
    }
    Place(const Place &) = delete;
    Place &operator=(const Place &) = delete;

    const char *text() const { return m_text.data(); }

private:
    std::vector<char> m_text; // is never resized: that would leave a copy behind
};

Secret Secret::takeFrom(QByteArray &text)
{
    Secret secret;
    secret.m_place = std::make_shared<const Place>(text);
    wipe(text);
    return secret;
}

Secret Secret::takeFrom(QString &text)
{
    QByteArray bytes = text.toUtf8();
    wipe(text);
    return takeFrom(bytes);
}

const char *Secret::text() const
{
    return m_place->text();
}

bool Secret::operator==(const Secret &other) const
{
    return m_place == other.m_place ||
           (m_place && other.m_place && std::strcmp(text(), other.text()) == 0);
}
