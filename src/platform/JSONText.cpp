#include <QHash>
#include <QStringDecoder>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "platform/JSONItem.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr size_t kDeepest = 64;
// A value takes about 80 bytes of memory and two of text, so the size of a text alone bounds nothing.
constexpr size_t kMostValues = 1'000'000;
// Up to this many members are searched in a line; more get an index, or a hostile text would cost their square.
constexpr size_t kSearchedInLine = 16;

}  // namespace

// Takes a text's events from the parser, which keeps no stack of calls: the depth of a text is a number here.
class JSONItem::Builder : public nlohmann::json::json_sax_t {
 public:
  bool null() override { return take(JSONItem()); }
  bool boolean(bool value) override { return take(JSONItem::boolean(value)); }
  // Only "-0" comes as a signed zero; its sign would be lost in the integer.
  bool number_integer(number_integer_t value) override {
    return take(JSONItem::number(value == 0 ? u"-0"_s : QString::number(value)));
  }
  bool number_unsigned(number_unsigned_t value) override { return take(JSONItem::number(QString::number(value))); }
  bool number_float(number_float_t, const string_t& raw) override {
    QString digits = QString::fromLatin1(raw.data(), static_cast<qsizetype>(raw.size()));
    // The parser writes the locale's decimal sign into the text it hands out.
    for (QChar& c : digits)
      if (!u"0123456789+-eE"_s.contains(c)) c = u'.';
    return take(JSONItem::number(digits));
  }
  bool string(string_t& value) override { return take(JSONItem::text(utf16(value))); }
  bool binary(binary_t&) override { return refuse(u"binary data"_s); }
  bool start_object(size_t) override { return open(JSONItem::object()); }
  bool start_array(size_t) override { return open(JSONItem::array()); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }
  bool key(string_t& name) override {
    m_open.back().name = utf16(name);
    return true;
  }
  bool parse_error(size_t position, const std::string&, const nlohmann::detail::exception&) override {
    return refuse(u"no valid JSON at byte %1"_s.arg(position));
  }

  [[nodiscard]] JSONItem& root() { return m_root; }
  [[nodiscard]] QString reason() const { return m_reason; }

 private:
  struct Level {
    JSONItem container;
    QString name;  // of the member that comes next
    QHash<QString, size_t> index;
  };

  static QString utf16(const string_t& text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    if (!bytes.startsWith("\xef\xbb\xbf")) return QString::fromUtf8(bytes);
    // A mark at the beginning is a character of the value, which a plain conversion drops.
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom).decode(bytes);
  }

  bool refuse(const QString& reason) {
    if (m_reason.isEmpty()) m_reason = reason;
    return false;
  }

  bool open(JSONItem container) {
    if (m_open.size() >= kDeepest) return refuse(u"nested deeper than %1"_s.arg(kDeepest));
    m_open.push_back({std::move(container), {}, {}});
    return true;
  }

  bool close() {
    JSONItem done = std::move(m_open.back().container);
    m_open.pop_back();
    return take(std::move(done));
  }

  bool take(JSONItem value) {
    if (++m_count > kMostValues) return refuse(u"more than %1 values"_s.arg(kMostValues));
    if (m_open.empty()) {
      m_root = std::move(value);
      return true;
    }
    Level& level = m_open.back();
    auto& members = level.container.m_members;
    if (JSONItem* earlier = level.container.m_kind == Kind::Object ? memberOf(level) : nullptr)
      *earlier = std::move(value);
    else
      members.emplace_back(std::move(level.name), std::move(value));
    return true;
  }

  // The member that has the name already, or nullptr after noting where the new one will stand.
  static JSONItem* memberOf(Level& level) {
    auto& members = level.container.m_members;
    if (members.size() < kSearchedInLine) {
      for (auto& [name, value] : members)
        if (name == level.name) return &value;
      return nullptr;
    }
    if (level.index.isEmpty())
      for (size_t i = 0; i < members.size(); ++i) level.index.insert(members[i].first, i);
    const auto place = level.index.constFind(level.name);
    if (place != level.index.constEnd()) return &members[*place].second;
    level.index.insert(level.name, members.size());
    return nullptr;
  }

  std::vector<Level> m_open;
  JSONItem m_root;
  QString m_reason;
  size_t m_count = 0;
};

std::optional<JSONItem> JSONItem::parse(const QByteArray& utf8, QString* error) {
  // The parser takes a zero byte for the end, whatever stands behind it.
  if (utf8.contains('\0')) {
    if (error) *error = u"no valid JSON: a zero byte"_s;
    return std::nullopt;
  }
  Builder builder;
  bool whole = false;
  QString reason;
  try {
    whole = nlohmann::json::sax_parse(utf8.begin(), utf8.end(), &builder);
    reason = builder.reason();
  } catch (const std::exception& failure) {  // lack of memory, for one
    reason = QString::fromUtf8(failure.what());
  }
  if (whole) return std::move(builder.root());
  if (error) *error = reason;
  return std::nullopt;
}

namespace {

bool isInvisible(char16_t c) {
  struct Range {
    char16_t first, last;
  };
  static constexpr Range kRanges[] = {{0, 31},      {127, 127},     {173, 173},    {1536, 1540},
                                      {1807, 1807}, {6068, 6069},   {8204, 8207},  {8232, 8239},
                                      {8288, 8303}, {65279, 65279}, {65520, 65535}};
  for (const auto& range : kRanges)
    if (c >= range.first && c <= range.last) return true;
  return false;
}

// The letter of the short form, or 0.
char16_t shortForm(char16_t c) {
  switch (c) {
    case u'\\':
    case u'"':
    case u'/':
      return c;
    case u'\b':
      return u'b';
    case u'\f':
      return u'f';
    case u'\n':
      return u'n';
    case u'\r':
      return u'r';
    case u'\t':
      return u't';
    default:
      return 0;
  }
}

void appendQuoted(QString& out, const QString& text) {
  out += u'"';
  for (qsizetype i = 0; i < text.size(); ++i) {
    char16_t c = text[i].unicode();
    if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      out += text[i];
      out += text[++i];
      continue;
    }
    if (text[i].isSurrogate()) c = QChar::ReplacementCharacter;  // half a pair has no form that a reader takes
    if (const char16_t letter = shortForm(c)) {
      out += u'\\';
      out += QChar(letter);
    } else if (isInvisible(c)) {
      out += u"\\u%1"_s.arg(uint{c}, 4, 16, QLatin1Char('0'));
    } else {
      out += QChar(c);
    }
  }
  out += u'"';
}

void appendItem(QString& out, const JSONItem& item) {
  switch (item.kind()) {
    case JSONItem::Kind::Null:
      out += u"null"_s;
      return;
    case JSONItem::Kind::Boolean:
    case JSONItem::Kind::Number:
      out += item.toText();
      return;
    case JSONItem::Kind::Text:
      appendQuoted(out, item.toText());
      return;
    case JSONItem::Kind::Array:
    case JSONItem::Kind::Object:
      break;
  }
  out += item.IsArray() ? u'[' : u'{';
  for (int i = 0; i < item.Count(); ++i) {
    if (i > 0) out += u',';
    if (!item.IsArray()) {
      appendQuoted(out, item.Name(i));
      out += u':';
    }
    appendItem(out, item.Value(i));
  }
  out += item.IsArray() ? u']' : u'}';
}

}  // namespace

QByteArray JSONItem::ToString() const {
  QString out;
  appendItem(out, *this);
  return out.toUtf8();
}

QString decimalText(double value) {
  constexpr int kMostDecimals = 15;
  if (!std::isfinite(value)) return u"0.0"_s;
  char buffer[400];  // the largest double has 309 digits before the point
  const auto shortest = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
  QLatin1String text(buffer, shortest.ptr);
  qsizetype point = text.indexOf('.'_L1);
  if (point < 0) return text == "-0"_L1 ? u"0.0"_s : text + u".0"_s;
  if (text.size() - point - 1 <= kMostDecimals) return text;
  const auto cut = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, kMostDecimals);
  text = QLatin1String(buffer, cut.ptr);
  point = text.indexOf('.'_L1);
  while (text.endsWith('0'_L1) && text.size() > point + 2) text.chop(1);
  return text == "-0.0"_L1 ? u"0.0"_s : QString(text);
}
