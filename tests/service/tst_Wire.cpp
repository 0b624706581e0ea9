// The plain parts of an exchange: Base64, the file, addresses, names and the bytes of a reply.

#include <sys/stat.h>
#include <unistd.h>

#include <QRandomGenerator>
#include <future>
#include <semaphore>

#include "service/Base64.h"
#include "service/FileSource.h"
#include "service/NameLookup.h"
#include "service/ReplyParser.h"
#include "service/Url.h"
#include "support/TemporaryHome.h"
#include "support/TestRunner.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using Phase = HttpFailure::Phase;

static Deadline in(std::chrono::milliseconds time) { return std::chrono::steady_clock::now() + time; }

class tst_Wire : public QObject {
  Q_OBJECT
  static QByteArray encodeInPieces(Base64Path path, const QByteArray& data, QList<qsizetype> ends) {
    Base64Encoder encoder(path);
    QByteArray out(base64Length(data.size()) + 8, '#');
    qsizetype begin = 0, written = 0;
    ends.append(data.size());
    for (const qsizetype end : ends) {
      written += encoder.encode(data.constData() + begin, end - begin, out.data() + written);
      begin = end;
    }
    written += encoder.finish(out.data() + written);
    return out.first(written);
  }

 private slots:
  void base64IsThatOfQt() {
    QRandomGenerator random(20260101);
    QByteArray all(200'000, Qt::Uninitialized);
    for (char& byte : all) byte = static_cast<char>(random.bounded(256));
    for (const Base64Path path : {Base64Path::Portable, Base64Path::Avx2, Base64Path::Avx512}) {
      if (!supports(path)) continue;
      for (qsizetype size = 0; size <= 300; ++size) {
        const QByteArray data = all.first(size), expected = data.toBase64();
        QCOMPARE(expected.size(), base64Length(size));
        for (qsizetype split = 0; split <= size; ++split) QCOMPARE(encodeInPieces(path, data, {split}), expected);
      }
      QCOMPARE(encodeInPieces(path, all, {1, 2, 5, 49'999, 50'000, 131'073}), all.toBase64());
    }
  }

  void aFileThatIsNotInItsVersionIsNotSentToItsEnd() {
    const TemporaryHome home;
    const QString path = home.path(u"scan.txt"_s);
    const auto make = [&](const QString& name) {
      TemporaryHome::setDate(home.writeFile(name, QByteArray(100'000, 'x')), 1'700'000'000.25);
    };
    const auto write = [&path](const QByteArray& bytes, qint64 offset) {
      QFile file(path);
      return file.open(QIODevice::ReadWrite) && file.seek(offset) && file.write(bytes) == bytes.size();
    };
    const auto grows = [&] { return write("more", 100'000); };
    const auto changesInItsSize = [&] { return write("y", 0); };
    const auto becomesFifo = [&] { return QFile::remove(path) && mkfifo(qPrintable(path), 0600) == 0; };
    const std::pair<bool, std::function<bool()>> changes[] = {
        // while it is read, or before
        {true, [&] { return QFile::resize(path, 60'000); }},
        {true, [&] { return QFile::resize(path, 99'999); }},
        {true, grows},
        {true, [&] { return grows() && (TemporaryHome::setDate(path, 1'700'000'000.25), true); }},
        {true, changesInItsSize},
        {true, [&] { return make(u"other"_s), ::rename(qPrintable(home.path(u"other"_s)), qPrintable(path)) == 0; }},
        {true, [&] { return QFile::remove(path); }},
        {false, grows},
        {false, changesInItsSize},
        {false, becomesFifo}};
    for (const auto& [opened, change] : changes) {
      make(u"scan.txt"_s);
      const FolderItem file = home.item(u"scan.txt"_s);
      const FileVersion version = *versionOf(file);
      QVERIFY(opened || change());
      FileSourceState state;
      FileSource source(file, version, state);
      source.setEnvelope("<before>", "</behind>");
      QByteArray all;
      if (opened) QVERIFY(source.isOpen() && source.read(all) && change());
      for (qsizetype before = -1; source.isOpen() && std::exchange(before, all.size()) != all.size();)
        if (!source.read(all)) break;
      QVERIFY(state.changed && !all.contains("</behind>"));
      QFile::remove(path);
    }
    FileSourceState gone;
    QVERIFY(!FileSource(home.item(u"gone.txt"_s), {5, 0}, gone).isOpen() && !gone.changed);
    QCOMPARE(gone.failure.error, ENOENT);
  }

  void addressesAreTakenApartOrRefused() {
    for (const auto& [text, parts] : {std::pair("https://svc.example/api/v1", "svc.example svc.example 443 /api/v1"),
                                      {"ftp://svc.example/", "svc.example svc.example 443 /"},
                                      {"http://a.example:8443/x", "a.example:8443 a.example 8443 /x"},
                                      {"https://a.example:/x", "a.example: a.example 443 /x"},
                                      {"https://[::1]:8443/api", "[::1]:8443 ::1 8443 /api"},
                                      {" https://a/api\n", "a a 443 /api"}}) {
      const auto url = Url::parse(QString::fromLatin1(text), 443);
      QVERIFY2(url, text);
      QCOMPARE(url->serverPart + ' ' + url->host.toUtf8() + ' ' + QByteArray::number(url->port) + ' ' + url->path,
               parts);
    }
    for (const char* text : {"https://a/api\r\nX-Evil: 1", "https://a/my api", "https://user:secret@a/", "https://a:0/",
                             "https://a:65536/", "https:///api", "", "https://[::1/api"})
      QVERIFY2(!Url::parse(QString::fromLatin1(text), 443), text);
    QCOMPARE(hostAndPort(u"fe80::1%1"_s, 443), u"[fe80::1%1]:443"_s);  // of the first network card
  }

  void namesAreAskedForOnceAndInAscii() {
    QByteArrayList asked;
    const auto addresses = [&](const QString& name) {
      std::promise<QByteArray> host;
      auto heard = host.get_future();
      const Resolver resolver = [&](const QByteArray& h, int) { return host.set_value(h), ResolverAnswer{{}, -1, {}}; };
      const auto result = lookUpName(name, 80, u"peer"_s, in(10s), resolver);
      asked << (result.failure.phase == Phase::Name ? heard.get() : "");
      return result.addresses.size();
    };
    QVERIFY(addresses(u"127.0.0.1"_s) == 1 && addresses(u"::1"_s) == 1 && addresses(u"m\u00fcller.example"_s) == 0);
    QCOMPARE(asked, (QByteArrayList{"", "", "xn--mller-kva.example"}));
    NameMemory memory;
    const NameMemory::Moment start{};
    memory.remember(u"a"_s, 443, {SocketAddress{}}, start);
    QCOMPARE(memory.recall(u"a"_s, 443, start + NameMemory::Life - 1ms).size(), size_t{1});
    QVERIFY(memory.recall(u"a"_s, 443, start + NameMemory::Life).empty() && memory.recall(u"a"_s, 80, start).empty());
    memory.forget(u"a"_s, 443);
    QVERIFY(memory.recall(u"a"_s, 443, start).empty());
  }

  void aLookupThatHangsIsLeftToItself() {
    const auto finished = std::make_shared<std::counting_semaphore<>>(0);
    std::promise<void> letGo;
    const Resolver hanging = [finished, goOn = letGo.get_future().share()](const QByteArray&, int) -> ResolverAnswer {
      goOn.wait();
      finished->release();
      return {{SocketAddress{}}, 0, {}};
    };
    const HttpFailure failure = lookUpName(u"a.example"_s, 80, u"the peer"_s, in(50ms), hanging).failure;
    QVERIFY(failure.phase == Phase::TimedOut && failure.code == -1 && failure.detail.contains("the peer"_L1));
    StopSignal::process().raise();
    QCOMPARE(lookUpName(u"a.example"_s, 80, u"the peer"_s, in(30s), hanging).failure.phase, Phase::Stopped);
    StopSignal::process().lower();
    letGo.set_value();
    for (int i = 0; i < 2; ++i) QVERIFY(finished->try_acquire_for(10s));
  }

  void everyReplyIsTheSameAtEverySplitAndHeadersKeepTheirOrder() {
    const QByteArray ok = "HTTP/1.0 200 OK\r\n";
    const std::pair<QByteArray, QByteArray> rows[] = {
        {ok + "Content-length: 3\r\n\r\nabc", "200 Complete abc"},
        {"HTTP/1.0 200 OK\nContent-Length: 3\n\nabc", "200 Complete abc"},
        {"HTTP/1.0 200 OK\rcontent-length:3\r\rabc", "200 Complete abc"},
        {"HTTP/1.0 200\n\n\r\n\r\nx", "200 Body \r\n\r\nx"},
        {"HTTP/1.0 200\r\r\n\nx", "200 Body \n\nx"},
        {"HTTP/1.0 500 No\r\n\r\nabc", "500 Body abc"},
        {ok + "Content-length: 3, 3\n\nabc", "200 Complete abc"},
        {ok + "Content-length: 3\nContent-length: 4\n\nabc", "200 BadLength "},
        {ok + "Content-length: +3\n\nabc", "200 BadLength "},
        {ok + "Content-length: 0x3\n\nabc", "200 BadLength "},
        {ok + "Content-length: 18446744073709551619\n\nabc", "200 TooLarge "},
        {ok + "Content-length: 101\n\nabc", "200 TooLarge "},
        {ok + "Transfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n0\r\n\r\n", "200 Body 3\r\nabc\r\n0\r\n\r\n"},
        {"HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 102 W\n\nHTTP/1.1 201 C\r\n\r\nabc", "201 Body abc"},
        {ok + "Content-length: 3\r\n", "0 Head "},
        {ok + "X: " + QByteArray(300, 'x') + "\r\n\r\nabc", "0 TooLarge "},
        {QByteArray("HTTP/1.1 100 C\r\n\r\n").repeated(20), "0 TooLarge "},
        {ok + "\r\n" + QByteArray(101, 'x'), "200 TooLarge " + QByteArray(100, 'x')}};
    for (const auto& [bytes, expected] : rows)
      for (qsizetype split = -1; split <= bytes.size(); ++split) {
        ReplyParser parser(HttpLimits{100, 256});
        const qsizetype piece = split < 1 ? 1 : split;  // byte by byte, or in two pieces and what may follow
        for (qsizetype at = 0; at < bytes.size(); at += piece)
          parser.feed(QByteArrayView(bytes).sliced(at, qMin(piece, bytes.size() - at)));
        const char* const names[] = {"Head", "Body", "Complete", "TooLarge", "BadLength"};
        const QByteArray state = names[static_cast<int>(parser.state())];
        QCOMPARE(QByteArray::number(parser.status()) + ' ' + state + ' ' + parser.takeBody(), expected);
      }
    ReplyParser parser({});
    parser.feed("HTTP/1.0 200 OK\r\nB: 1\r\nA:  two\r\n\t lines \r\nb: 3\r\n\r\n");
    const QList<std::pair<QByteArray, QByteArray>> fields = {{"B", "1"}, {"A", "two lines"}, {"b", "3"}};
    QVERIFY(parser.headers().fields() == fields && parser.headers().value("a") == "two lines");
  }
};

VANTRY_TEST(tst_Wire);
#include "tst_Wire.moc"
