#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "tests/office/Documents.h"
#include "tests/office/OfficeBatch.h"
#include "tests/office/WordDesk.h"

// Word documents by the real LibreOffice.

namespace trelonit::test {
namespace {

/// All that the samples hold, in one document.
RichDocument EverySample() {
  RichDocument all{{}};
  for (const NamedDocument& sample : SampleDocuments()) {
    all.Paragraphs.insert(all.Paragraphs.end(), sample.Document.Paragraphs.begin(),
                          sample.Document.Paragraphs.end());
  }
  return all;
}

TEST(WordDocuments, WhatIsSavedOpensTheSame) {
  WordDesk desk;
  const RichDocument document = EverySample();
  desk.Clipboard.SetRichText(WriteRtf(document), "");
  desk.Save(desk.Path("отчет.doc"));
  EXPECT_EQ(desk.Content("отчет.doc").substr(0, 4), "\xD0\xCF\x11\xE0");
  EXPECT_TRUE(desk.IsClean());
  desk.Clipboard.SetText("");
  desk.Open(desk.Path("отчет.doc"));
  EXPECT_EQ(Described(ReadRtf(desk.Clipboard.RichText())), Described(document));
  EXPECT_NE(desk.Clipboard.Text().find("Усилия в стержнях\r\n"), std::string::npos);
  EXPECT_TRUE(desk.IsClean());
}

TEST(WordDocuments, NamesMayHoldWhatShellsAndOptionsAreMadeOf) {
  WordDesk desk;
  const std::string name = "--help \"Ферма\" 'x' $(touch y) %s;&|.doc";
  desk.Clipboard.SetText("строка\r\nдругая");
  desk.Save(desk.Path(name));
  desk.Clipboard.SetText("");
  desk.Open(desk.Path(name));
  EXPECT_EQ(desk.Clipboard.Text(), "строка\r\nдругая");
  EXPECT_TRUE(desk.IsClean());
}

TEST(WordDocuments, SeveralAreConvertedAtOnce) {
  WordDesk first;
  WordDesk second;
  // One folder for both, as in two running programs.
  second.Settings.TemporaryFolder = first.Settings.TemporaryFolder;
  const auto save = [](WordDesk& desk, const std::string& text) {
    desk.Clipboard.SetText(text);
    desk.Save(desk.Path("x.doc"));
  };
  std::thread other([&] { save(second, "the second"); });
  save(first, "the first");
  other.join();
  EXPECT_NE(first.Content("x.doc").find(InUtf16("the first")), std::string::npos);
  EXPECT_NE(second.Content("x.doc").find(InUtf16("the second")), std::string::npos);
  EXPECT_TRUE(first.IsClean());
}

TEST(WordDocuments, DamagedOnesAreRefused) {
  WordDesk desk;
  desk.Put("bad.doc", LikeWordDocument() + std::string(5000, '\x7F'));
  desk.Clipboard.SetText("before");
  EXPECT_EQ(ErrorOf([&] { desk.Open(desk.Path("bad.doc")); }), 57);
  EXPECT_TRUE(desk.Clipboard.Text() == "before");
  EXPECT_TRUE(desk.IsClean());
}

/// A place in the network that notes whether somebody calls.
class Listener {
 public:
  Listener() : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* place = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(::bind(socket_, place, length), 0);
    EXPECT_EQ(::getsockname(socket_, place, &length), 0);
    port_ = ntohs(address.sin_port);
  }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;
  ~Listener() { ::close(socket_); }

  std::string Address() const { return "127.0.0.1:" + std::to_string(port_); }
  void Listen() { EXPECT_EQ(::listen(socket_, 5), 0); }
  bool WasCalled() const {
    pollfd event{socket_, POLLIN, 0};
    return ::poll(&event, 1, 0) > 0;
  }

 private:
  int socket_;
  std::uint16_t port_ = 0;
};

TEST(WordDocuments, LinksOfADocumentAreNotFollowed) {
  WordDesk desk;
  Listener listener;
  const std::vector<std::string> linked = ConvertAll(
      {R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 xmlns:xlink="http://www.w3.org/1999/xlink" office:version="1.3"
 office:mimetype="application/vnd.oasis.opendocument.text"><office:body><office:text><text:p>a
 <draw:frame text:anchor-type="as-char" svg:width="2cm" svg:height="2cm"><draw:image
 xlink:type="simple" xlink:href="http://)" +
       listener.Address() + R"(/x.png"/></draw:frame> b</text:p></office:text></office:body>
</office:document>)"},
      "fodt", "doc", "MS Word 97");
  ASSERT_EQ(linked.size(), 1U);
  ASSERT_NE(linked[0].find(listener.Address()), std::string::npos);
  desk.Put("linked.doc", linked[0]);
  listener.Listen();
  desk.Open(desk.Path("linked.doc"));
  EXPECT_FALSE(listener.WasCalled());
  EXPECT_EQ(desk.Clipboard.Text().substr(0, 1), "a");
}

}  // namespace
}  // namespace trelonit::test
