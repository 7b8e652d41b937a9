#include "editor/rtf/RtfCodePages.h"

#include <string_view>

#include "platform/text/CodePage1251.h"

namespace trelonit {

namespace {

// Bytes 128 to 255 of each page, as the Unicode consortium's mapping tables give them.

constexpr std::u16string_view page437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫"
    u"╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";

constexpr std::u16string_view page850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎ"
    u"Ï┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

constexpr std::u16string_view page866 =
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯабвгдежзийклмноп░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫"
    u"╪┘┌█▄▌▐▀рстуфхцчшщъыьэюяЁёЄєЇїЎў°∙·√№¤■\u00A0";

constexpr std::u16string_view page1250 =
    u"€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ\u0090‘’“”•–—\u0098™š›śťžź\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´"
    u"µ¶·¸ąş»Ľ˝ľżŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢßŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙";

constexpr std::u16string_view page1252 =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´"
    u"µ¶·¸¹º»¼½¾¿ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖ×ØÙÚÛÜÝÞßàáâãäåæçèéêëìíîïðñòóôõö÷øùúûüýþÿ";

constexpr std::u16string_view page1253 =
    u"€\u0081‚ƒ„…†‡\u0088‰\u008A‹\u008C\u008D\u008E\u008F\u0090‘’“”•–—\u0098™\u009A›\u009C"
    u"\u009D\u009E\u009F\u00A0΅Ά£¤¥¦§¨©ª«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡÒΣΤΥΦΧΨΩΪΫ"
    u"άέήίΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώÿ";

constexpr std::u16string_view page1254 =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008D\u008E\u008F\u0090‘’“”•–—˜™š›œ\u009D\u009EŸ\u00A0¡¢£¤¥¦§¨©ª«¬"
    u"\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞßàáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ";

constexpr std::u16string_view page1255 =
    u"€\u0081‚ƒ„…†‡ˆ‰\u008A‹\u008C\u008D\u008E\u008F\u0090‘’“”•–—˜™\u009A›\u009C\u009D\u009E"
    u"\u009F\u00A0¡¢£₪¥¦§¨©×«¬\u00AD®¯°±²³´µ¶·¸¹÷»¼½¾¿\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5"
    u"\u05B6\u05B7\u05B8\u05B9Ê\u05BB\u05BC\u05BD\u05BE\u05BF\u05C0\u05C1\u05C2\u05C3\u05F0"
    u"\u05F1\u05F2\u05F3\u05F4ÙÚÛÜÝÞß\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8"
    u"\u05D9\u05DA\u05DB\u05DC\u05DD\u05DE\u05DF\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6"
    u"\u05E7\u05E8\u05E9\u05EAûü\u200E\u200Fÿ";

constexpr std::u16string_view page1256 =
    u"€\u067E‚ƒ„…†‡ˆ‰\u0679‹Œ\u0686\u0698\u0688\u06AF‘’“”•–—\u06A9™\u0691›œ\u200C\u200D\u06BA"
    u"\u00A0\u060C¢£¤¥¦§¨©\u06BE«¬\u00AD®¯°±²³´µ¶·¸¹\u061B»¼½¾\u061F\u06C1\u0621\u0622\u0623"
    u"\u0624\u0625\u0626\u0627\u0628\u0629\u062A\u062B\u062C\u062D\u062E\u062F\u0630\u0631"
    u"\u0632\u0633\u0634\u0635\u0636×\u0637\u0638\u0639\u063A\u0640\u0641\u0642\u0643à\u0644â"
    u"\u0645\u0646\u0647\u0648çèéêë\u0649\u064Aîï\u064B\u064C\u064D\u064Eô\u064F\u0650÷\u0651ù"
    u"\u0652ûü\u200E\u200F\u06D2";

constexpr std::u16string_view page1257 =
    u"€\u0081‚\u0083„…†‡\u0088‰\u008A‹\u008C¨ˇ¸\u0090‘’“”•–—\u0098™\u009A›\u009C¯˛\u009F\u00A0"
    u"¡¢£¤¥¦§Ø©Ŗ«¬\u00AD®Æ°±²³´µ¶·ø¹ŗ»¼½¾æĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽßąįāćäåęēčéźėģķīļšńņó"
    u"ōõö÷ųłśūüżž˙";

constexpr std::size_t upperHalf = 128;
static_assert(page437.size() == upperHalf && page850.size() == upperHalf &&
              page866.size() == upperHalf && page1250.size() == upperHalf &&
              page1252.size() == upperHalf && page1253.size() == upperHalf &&
              page1254.size() == upperHalf && page1255.size() == upperHalf &&
              page1256.size() == upperHalf && page1257.size() == upperHalf);

std::u16string_view UpperHalf(std::int32_t codePage) {
  switch (codePage) {
    case 437:
      return page437;
    case 850:
      return page850;
    case 866:
      return page866;
    case 1250:
      return page1250;
    case 1253:
      return page1253;
    case 1254:
      return page1254;
    case 1255:
      return page1255;
    case 1256:
      return page1256;
    case 1257:
      return page1257;
    default:
      return page1252;
  }
}

}  // namespace

char16_t FromCodePage(std::int32_t codePage, unsigned char byte) {
  if (byte < upperHalf) {
    return byte;
  }
  return codePage == 1251 ? FromCodePage1251(byte) : UpperHalf(codePage)[byte - upperHalf];
}

std::optional<std::int32_t> CodePageOfCharset(std::int32_t charset) {
  switch (charset) {
    case 1:
      return std::nullopt;
    case 161:
      return 1253;
    case 162:
      return 1254;
    case 177:
      return 1255;
    case 178:
      return 1256;
    case 186:
      return 1257;
    case 204:
      return 1251;
    case 238:
      return 1250;
    case 254:
      return 437;
    case 255:
      return 850;
    default:
      return 1252;
  }
}

}  // namespace trelonit
