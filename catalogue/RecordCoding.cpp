#include "catalogue/RecordCoding.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "platform/text/CodePage1251.h"

namespace trelonit {

namespace {

constexpr std::size_t designationSize = decltype(ProfileRec::Name)::Length();
constexpr std::size_t standardNameSize = decltype(ProfileRec::Type)::Length();
static_assert(designationSize + standardNameSize + profileFields.size() * sizeof(double) ==
              profileRecordSize);
static_assert(standardNameSize + 2 * sizeof(Long) == indexRecordSize);

/// A table, since the whole catalogue is decoded while the user waits for the first window.
const std::array<char16_t, 256>& CharacterTable() {
  static const std::array<char16_t, 256> table = [] {
    std::array<char16_t, 256> characters{};
    for (std::size_t byte = 0; byte < characters.size(); ++byte) {
      characters[byte] = FromCodePage1251(static_cast<unsigned char>(byte));
    }
    return characters;
  }();
  return table;
}

template <std::size_t N>
void EncodeText(const FixedText<N>& text, char* bytes) {
  std::transform(text.Raw().begin(), text.Raw().end(), bytes,
                 [](char16_t character) { return static_cast<char>(ToCodePage1251(character)); });
}

template <std::size_t N>
FixedText<N> DecodeText(std::string_view bytes, std::size_t offset) {
  FixedText<N> text;
  const std::array<char16_t, 256>& characters = CharacterTable();
  const std::string_view field = bytes.substr(std::min(offset, bytes.size()), N);
  std::transform(field.begin(), field.end(), text.Raw().begin(),
                 [&characters](char byte) { return characters[static_cast<unsigned char>(byte)]; });
  return text;
}

// The files are little-endian on every machine.

template <class Bits>
std::array<char, sizeof(Bits)> Turned(std::array<char, sizeof(Bits)> bytes) {
  if constexpr (std::endian::native == std::endian::big) {
    std::reverse(bytes.begin(), bytes.end());
  }
  return bytes;
}

template <class Bits>
void EncodeBits(Bits value, char* bytes) {
  const auto field = Turned<Bits>(std::bit_cast<std::array<char, sizeof(Bits)>>(value));
  std::copy(field.begin(), field.end(), bytes);
}

template <class Bits>
Bits DecodeBits(std::string_view bytes, std::size_t offset) {
  if (bytes.size() < offset + sizeof(Bits)) {
    return 0;
  }
  std::array<char, sizeof(Bits)> field{};
  std::copy_n(bytes.data() + offset, field.size(), field.begin());
  return std::bit_cast<Bits>(Turned<Bits>(field));
}

}  // namespace

std::array<char, profileRecordSize> EncodeProfileRecord(const ProfileRec& record) {
  std::array<char, profileRecordSize> bytes{};
  EncodeText(record.Name, bytes.data());
  EncodeText(record.Type, bytes.data() + designationSize);
  std::size_t offset = designationSize + standardNameSize;
  for (const ProfileField& field : profileFields) {
    EncodeBits(std::bit_cast<std::uint64_t>(record.*field.Number), bytes.data() + offset);
    offset += sizeof(double);
  }
  return bytes;
}

ProfileRec DecodeProfileRecord(std::string_view bytes) {
  ProfileRec record;
  record.Name = DecodeText<designationSize>(bytes, 0);
  record.Type = DecodeText<standardNameSize>(bytes, designationSize);
  std::size_t offset = designationSize + standardNameSize;
  for (const ProfileField& field : profileFields) {
    record.*field.Number = std::bit_cast<double>(DecodeBits<std::uint64_t>(bytes, offset));
    offset += sizeof(double);
  }
  return record;
}

std::array<char, indexRecordSize> EncodeIndexRecord(const IndexRec& record) {
  std::array<char, indexRecordSize> bytes{};
  EncodeText(record.Name, bytes.data());
  EncodeBits(static_cast<std::uint32_t>(record.FirstNum), bytes.data() + standardNameSize);
  EncodeBits(static_cast<std::uint32_t>(record.LastNum),
             bytes.data() + standardNameSize + sizeof(Long));
  return bytes;
}

IndexRec DecodeIndexRecord(std::string_view bytes) {
  return {.Name = DecodeText<standardNameSize>(bytes, 0),
          .FirstNum = static_cast<Long>(DecodeBits<std::uint32_t>(bytes, standardNameSize)),
          .LastNum =
              static_cast<Long>(DecodeBits<std::uint32_t>(bytes, standardNameSize + sizeof(Long)))};
}

}  // namespace trelonit
