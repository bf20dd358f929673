#include "desktop/text_decoding.h"

#include <QStringDecoder>
#include <array>

namespace sonotik {
namespace {

// Windows-1252, 0x80 to 0x9F; the five codes without a letter stay themselves.
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

QString Decode(std::string_view bytes) {
  QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  QString text = utf8(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  if (!utf8.hasError()) return text;
  text.clear();
  text.reserve(static_cast<qsizetype>(bytes.size()));
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    text += code >= 0x80 && code < 0xA0 ? QChar(kUpperControls[code - 0x80U]) : QChar(code);
  }
  return text;
}

}  // namespace sonotik
