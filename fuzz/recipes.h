// Small whole files for every parser, sound ones and such as lie. The fuzzers begin with them, and
// the tests turn each of their bytes.
#ifndef SONOTIK_FUZZ_RECIPES_H_
#define SONOTIK_FUZZ_RECIPES_H_

#include <map>
#include <string>

#include "fuzz/tag_bytes.h"
#include "text/text.h"

namespace sonotik {

using RecipesOfAParser = std::map<std::string, std::string>;

// By the parser and the recipe's name. One that begins with "fails_" ends in the ordinary failure;
// all others give fields, be they empty.
inline std::map<std::string, RecipesOfAParser> Recipes() {
  const std::string song = Latin("Song");
  const std::string most = "\x7F\xFF\xFF\xFF";
  const std::string over = "\xFF\xFF\xFF\xFF";
  const std::string tail = Id3v1("Old" + Zeros(27) + "Band", Bytes("\0\7\x11"));
  const std::string frame = "\xFF\xFB\x90\x64";
  const std::string wide = Bytes("\1\xFF\xFE") + Wide("Song");
  const std::string texts = Frame3("TIT2", song) + Frame3("TPE1", wide) +
                            Frame3("TCON", Latin("(17)")) + Frame3("COMM", Bytes("\0eng\0a")) +
                            Frame3("WXXX", Bytes("\0d\0u")) + Frame3("TRCK", Latin("3/12"));
  const std::string seeking = Tag(4, 0, Frame4("SEEK", Big(20)) + Frame4("TIT2", song));
  const std::string footed = Tag(4, 0x10, Frame4("TIT2", song));
  const std::string appended = "sound" + footed + "3DI" + footed.substr(3, 7);
  const RecipesOfAParser id3v2 = {
      {"v22", Tag(2, 0, Frame2("TT2", song) + Frame2("COM", Bytes("\0eng\0a")))},
      {"v22_unsync", Tag(2, 0x80, Frame2("TT2", Bytes("\0\xFF\0\xFF\0")))},
      {"v23", Tag(3, 0, texts + Zeros(20)) + frame},
      {"v23_unsync_extended", Tag(3, 0xC0, Big(6) + Zeros(6) + Frame3("TIT2", Bytes("\0\xFF\0Z")))},
      {"v23_flags", Tag(3, 0, Frame3("TIT2", "g" + song, 0x20) + Frame3("TALB", song, '\x80'))},
      {"v24_flags",
       Tag(4, 0x80, Frame4("TIT2", "g" + Big(5) + song, 0x43) + Frame4("TDRC", song, 8))},
      {"v24_update", Tag(4, 0x40, Sync(6) + Bytes("\1\x40") + Frame4("TIT2", song))},
      {"v24_plain_sizes",
       Tag(4, 0,
           "TIT2" + Big(301) + Zeros(3) + std::string(300, 'x') + "TALB" + Big(2) + Zeros(4))},
      {"v24_wrong_inner_length", Tag(4, 0, Frame4("TIT2", Big(900) + song, 3))},
      {"tag_beyond_the_file", "ID3" + Bytes("\3\0\0") + most + texts},
      {"frame_beyond_the_tag", Tag(3, 0, "TIT2" + most + Zeros(30))},
      {"fails_overflow", Tag(3, 0, "TIT2" + over + Zeros(9))},
      {"fails_overflow_of_the_tag", "ID3" + Bytes("\3\0\0") + over + Zeros(20)},
      {"fails_overflow_of_the_extended_header", Tag(3, 0x40, over + Zeros(20))},
      {"fails_overflow_of_seek", Tag(4, 0, Frame4("SEEK", over))},
      {"empty_frames", Tag(3, 0, Frame3("TIT2", "") + Frame3("COMM", "") + Frame3("SEEK", ""))},
      {"fails_empty_tag", Tag(3, 0, "")},
      {"extended_beyond_the_tag", Tag(4, 0x40, most + Frame4("TIT2", song))},
      {"odd_utf16",
       Tag(3, 0, Frame3("TIT2", Bytes("\1\xFE\xFF\0A\0")) + Frame3("COMM", Bytes("\2en")))},
      {"encoding_4", Tag(3, 0, Frame3("TIT2", "\4Song"))},
      {"appended", appended},
      {"appended_before_v1", appended + tail},
      {"footer_before_the_file", "3DI" + Bytes("\4\0\0") + most},
      {"seek_chain", seeking + std::string(20, 'x') + seeking + std::string(20, 'x') +
                         Tag(4, 0, Frame4("SEEK", most))},
      {"ff_only", std::string(60, '\xFF')}};

  const std::string head = frame + Zeros(32);
  const RecipesOfAParser mpeg = {
      {"constant", frame + std::string(40, 'x')},
      {"xing", head + "Xing" + Big(3) + Big(1000) + Big(500000)},
      {"info_no_frames", head + "Info" + Big(3) + Big(0) + Big(500000)},
      {"vbri", head + "VBRI" + Zeros(6) + Big(500000) + Big(1000)},
      {"mono_v2", "\xFF\xF3\x40\xC0" + Zeros(9) + "Xing" + Big(3) + Big(9) + Big(9)},
      {"fails_reserved_rate", "\xFF\xFB\x9C\x64" + Zeros(32) + "Xing" + Big(3) + Big(9) + Big(9)},
      {"v25_layer2", "\xFF\xE5\x10\x64" + Zeros(20)},
      {"behind_a_tag", Tag(4, 0x10, "x") + "3DI" + Zeros(7) + frame + tail},
      {"in_the_last_bytes", "x\xFF\xFB\x90"},
      {"ff_only", std::string(60, '\xFF')}};

  const std::string picture = Bytes("\0image/jpeg\0\3Front\0picture");
  const std::string lines = Bytes("\0eng\2\1\0one\n\0") + Big(61000) + Bytes("two\0") + Big(62000);
  const RecipesOfAParser classes = {
      {"all", Tag(3, 0x60,
                  Big(10) + Zeros(10) + texts + Frame3("USLT", Bytes("\0eng\0la")) +
                      Frame3("SYLT", lines) + Frame3("APIC", picture) + Frame3("PRIV", "p")) +
                  frame + tail},
      {"unsync", Tag(3, 0x80, texts) + tail},
      {"picture_without_end", Tag(3, 0, Frame3("APIC", Bytes("\0image/png\0\3Front")))},
      {"lyrics_without_time", Tag(3, 0, Frame3("SYLT", lines.substr(0, 14)))},
      {"overflow", Tag(3, 0, texts + "APIC" + over + Zeros(9))},
      {"v1_only", frame + Zeros(20) + tail},
      {"version_2", "\xFF\xF3\x90\x40" + Zeros(20)}};

  // Keeps the header at its 5,000 bytes.
  const std::string fill(5020, 'x');
  const std::string odd = Wma(Bytes("\x50\0"), {"Song"}).replace(54, 1, "\x0B");
  const RecipesOfAParser wma = {{"names", Wma(Bytes("\x50\0"), {"Song", "Band"})},
                                {"copyright", Wma("\x50\1", {"Song", "Band", "(c)"})},
                                {"odd_length", odd},
                                {"no_pattern", fill},
                                {"fails_no_lengths", Wma("\x50\1", {})},
                                {"fails_kbps_at_once", Zeros(10) + "12 kbps" + fill},
                                {"fails_khz_at_once", Zeros(10) + "1,00khz" + fill},
                                {"fails_year_of_no_length", Zeros(10) + "WM/Year\1x" + fill},
                                {"fails_album_of_no_length", Zeros(10) + "WM/AlbumTitle\1x" + fill},
                                {"fails_year_at_the_end", fill.substr(0, 5003) + "WM/Year"},
                                {"fails_short", "0123456789" + std::string(40, 'x')}};
  // Small on purpose: atoms are looked for from 30,000 on, and the fuzzers grow what is needed.
  const std::string atoms = Atom("nam", "Song") + Atom("ART", "Band") + Atom("alb", "Al");
  const RecipesOfAParser mp4 = {{"atoms", M4a(atoms + Atom("day", "2001"))},
                                {"no_atoms", M4a("", 60)},
                                {"fails_ends_in_a_value", M4a(atoms.substr(0, 30))},
                                {"fails_empty", ""}};
  const RecipesOfAParser sidecar = {
      {"whole", kSidecar},
      {"dos", ReplaceAll(kSidecar, "\n", "\r\n")},
      {"fails_a_line_missing", kSidecar.substr(7)},
      {"fails_short_line", ReplaceAll(kSidecar, "<year>1984</year>", "<y></y>")}};
  std::string lines_of_a_chart;
  for (int i = 0; i < 10; ++i) lines_of_a_chart += "\"The Band, the\",Song & Co,p.gif\r\n";
  const RecipesOfAParser chart = {
      {"fails_plain", lines_of_a_chart},
      {"resolved", ReplaceAll(lines_of_a_chart, "gif", "gif,\"\\m\\s.mp3\"")},
      {"fails_one_field_a_line", ReplaceAll(lines_of_a_chart, ",", "\n")},
      {"fails_nine_lines", lines_of_a_chart.substr(0, lines_of_a_chart.size() / 10 * 9)},
      {"fails_a_quote_without_end", lines_of_a_chart.substr(0, 90) + "\"" + std::string(60, 'x')},
      {"blanks_and_commas", std::string(40, ',') + std::string(40, ' ')}};
  const RecipesOfAParser id3v1 = {{"track", "x" + tail},
                                  {"no_track", Id3v1("Old", "ab\xFF")},
                                  {"short", tail.substr(1)},
                                  {"line_ends", Id3v1("a\r\nb", Zeros(3))}};
  return {{"id3v1", id3v1}, {"id3v2", id3v2}, {"mpeg", mpeg},       {"classes", classes},
          {"wma", wma},     {"mp4", mp4},     {"sidecar", sidecar}, {"chart", chart}};
}

}  // namespace sonotik

#endif  // SONOTIK_FUZZ_RECIPES_H_
