#include "service/ReplyParser.h"

#include <algorithm>
#include <limits>

/// True if a head ends with the byte at `last`.
static bool headEndsAt(const QByteArray& bytes, qsizetype last) {
  const auto endsWith = [&](QByteArrayView ending) {
    return last + 1 >= ending.size() && QByteArrayView(bytes).first(last + 1).endsWith(ending);
  };
  if (bytes[last] == '\n') return endsWith("\n\n") || endsWith("\r\n\r\n");
  return bytes[last] == '\r' && endsWith("\r\r");
}

HeadReader::State HeadReader::feed(QByteArrayView bytes) {
  if (m_state == State::Complete) m_rest.append(bytes.data(), bytes.size());
  if (m_state != State::Incomplete) return m_state;
  const qsizetype old = m_head.size();
  const qsizetype room = m_maxBytes - old;
  m_head.append(bytes.first(std::min(room, bytes.size())).data(), std::min(room, bytes.size()));
  for (qsizetype i = old; i < m_head.size(); ++i) {
    if (!headEndsAt(m_head, i)) continue;
    m_head.truncate(i + 1);
    const QByteArrayView rest = bytes.sliced(i + 1 - old);
    m_rest.append(rest.data(), rest.size());
    return m_state = State::Complete;
  }
  return m_state = m_head.size() >= m_maxBytes ? State::TooLarge : State::Incomplete;
}

QByteArray HeadReader::takeLine(qsizetype& position) const {
  qsizetype end = position;
  while (end < m_head.size() && m_head[end] != '\r' && m_head[end] != '\n') ++end;
  const QByteArray line = m_head.mid(position, end - position);
  position = end + (m_head.mid(end, 2) == "\r\n" ? 2 : 1);
  return line;
}

int HeadReader::status() const {
  qsizetype position = 0;
  const QList<QByteArray> fields = takeLine(position).simplified().split(' ');
  bool isNumber = false;
  const int number = fields.value(1).toInt(&isNumber);
  return isNumber ? number : 0;
}

InternetHeaders HeadReader::headers() const {
  QList<std::pair<QByteArray, QByteArray>> fields;
  qsizetype position = 0;
  (void)takeLine(position);
  while (position < m_head.size()) {
    const QByteArray line = takeLine(position);
    const bool continued = line.startsWith(' ') || line.startsWith('\t');
    if (continued && !fields.isEmpty()) {
      fields.last().second += ' ' + line.trimmed();
    } else if (const qsizetype colon = line.indexOf(':'); colon > 0) {
      fields.append({line.left(colon).trimmed(), line.mid(colon + 1).trimmed()});
    }
  }
  InternetHeaders headers;
  for (const auto& [name, value] : fields) headers.append(name, value);
  return headers;
}

namespace {
struct AnnouncedLength {
  bool valid = true;
  std::optional<qint64> bytes;
};
}  // namespace

/// Digits to a number; one that is out of range is the largest, which is beyond every limit.
static std::optional<qint64> parseLength(const QByteArray& text) {
  const bool digits = std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (text.isEmpty() || !digits) return std::nullopt;
  bool inRange = false;
  const qint64 number = text.toLongLong(&inRange);
  return inRange ? number : std::numeric_limits<qint64>::max();
}

static AnnouncedLength announcedLength(const InternetHeaders& headers) {
  AnnouncedLength result;
  for (const auto& [name, value] : headers.fields()) {
    if (name.compare("Content-length", Qt::CaseInsensitive) != 0) continue;
    for (const QByteArray& part : value.split(',')) {
      const std::optional<qint64> length = parseLength(part.trimmed());
      if (!length || (result.bytes && *result.bytes != *length)) return {false, {}};
      result.bytes = length;
    }
  }
  return result;
}

ReplyParser::State ReplyParser::feed(QByteArrayView bytes) {
  switch (m_state) {
    case State::Head:
      break;
    case State::Body:
      return append(bytes);
    case State::Complete:
    case State::TooLarge:
    case State::BadLength:
      return m_state;
  }
  QByteArray behindInterim;
  for (;;) {
    switch (m_reader.feed(bytes)) {
      case HeadReader::State::Incomplete:
        return m_state;
      case HeadReader::State::TooLarge:
        return m_state = State::TooLarge;
      case HeadReader::State::Complete:
        break;
    }
    const int status = m_reader.status();
    if (status < 100 || status >= 200 || status == 101) return beginBody();
    // All heads together stay within the bound, so a peer can't go on with interim ones for ever.
    m_headBytesLeft -= m_reader.head().size();
    behindInterim = m_reader.rest();
    m_reader = HeadReader(m_headBytesLeft);
    bytes = behindInterim;
  }
}

ReplyParser::State ReplyParser::beginBody() {
  const QByteArray rest = m_reader.rest();
  m_status = m_reader.status();
  m_headers = m_reader.headers();
  const AnnouncedLength length = announcedLength(m_headers);
  if (!length.valid) return m_state = State::BadLength;
  m_length = length.bytes;
  if (m_length && *m_length > m_limits.maxReplyBytes) return m_state = State::TooLarge;
  m_state = State::Body;
  return append(rest);
}

ReplyParser::State ReplyParser::append(QByteArrayView bytes) {
  const qint64 end = m_length.value_or(m_limits.maxReplyBytes);
  const qint64 count = std::min<qint64>(bytes.size(), end - m_body.size());
  m_body.append(bytes.data(), count);
  if (m_length && m_body.size() == *m_length) return m_state = State::Complete;
  if (!m_length && count < bytes.size()) return m_state = State::TooLarge;
  return m_state;
}
