#include "Lab.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <fstream>
#include <memory>
#include <random>

#include "Agent.h"
#include "service/Base64.h"
#include "service/VantryUtil.h"

namespace bench {

static constexpr size_t PieceBytes = 48 << 10;

/// Its writing, later, would disturb what is measured.
static void flush(const std::string& file) {
  const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0 || fdatasync(descriptor) != 0) fail("could not flush " + file);
  close(descriptor);
}

static int openNew(const std::string& file) {
  const int descriptor = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (descriptor < 0) fail("could not make " + file);
  return descriptor;
}

static std::string numbered(const std::string& folder, int i, const std::string& ending) {
  std::array<char, 16> number{};
  snprintf(number.data(), number.size(), "/%05d", i);
  return folder + number.data() + ending;
}

/// ext4 then spreads the folders made in this one over the disk. Without it they share the places of all that was
/// removed near them in the last minutes, which ext4 without a journal passes over one by one: making a file could cost
/// more than all else that is measured. Where the file system has no such flag, nothing is lost.
static void spreadFolders(const std::string& folder) {
  const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  int flags = 0;
  if (ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
    flags |= FS_TOPDIR_FL;
    (void)ioctl(fd, FS_IOC_SETFLAGS, &flags);
  }
  close(fd);
}

Lab::Lab(std::filesystem::path folder) : m_folder(std::filesystem::absolute(folder)) {
  spreadFolders(freshFolder("."));
}

Lab::~Lab() {
  m_sink.reset();
  std::error_code ignored;  // what can't be removed now is removed by the next run
  std::filesystem::remove_all(m_folder, ignored);
}

std::string Lab::freshFolder(const std::string& relative) const {
  const std::filesystem::path folder = (m_folder / relative).lexically_normal();
  std::error_code error;
  std::filesystem::remove_all(folder, error);
  if (!error) std::filesystem::create_directories(folder, error);
  if (error) fail("could not make " + folder.string() + ": " + error.message());
  return folder.string();
}

void Lab::remove(const std::string& relative) const {
  std::error_code error;
  std::filesystem::remove_all(m_folder / relative, error);
  if (error) fail("could not remove " + path(relative) + ": " + error.message());
}

std::string Lab::dataFile(qint64 bytes) {
  const std::string file = path("data-" + std::to_string(bytes));
  if (std::filesystem::exists(file)) return file;
  std::ofstream out(file, std::ios::binary);
  std::mt19937_64 random(42);
  std::vector<quint64> piece(1 << 17);
  for (qint64 left = bytes; left > 0;) {
    for (quint64& word : piece) word = random();
    const qint64 count = std::min<qint64>(left, static_cast<qint64>(piece.size() * sizeof(quint64)));
    out.write(reinterpret_cast<const char*>(piece.data()), count);
    left -= count;
  }
  if (!out.flush()) fail("could not write " + file);
  out.close();
  flush(file);
  setDate(file, now() - 3600);
  return file;
}

std::string Lab::sparseFile(qint64 bytes) const {
  const std::string file = path("sparse-" + std::to_string(bytes));
  std::ofstream(file).flush();
  std::error_code error;
  std::filesystem::resize_file(file, static_cast<std::uintmax_t>(bytes), error);
  if (error) fail("could not make " + file);
  setDate(file, now() - 3600);
  return file;
}

void Lab::writeEnvelope(const std::string& from, const std::string& to) const {
  QByteArray envelope = VantryUtil::sendFileTemplate();
  const QByteArray hash(64, '0');
  envelope.replace("[login]", Agent::Login).replace("[password]", hash).replace("[Trackname]", "Trackname");
  envelope.replace("[TRACKWORKFLOWNAME]", Agent::Track).replace("[SendFile]", "SendFile");
  envelope.replace("[FILENAME]", std::filesystem::path(from).filename().c_str());
  const qsizetype body = envelope.indexOf("[FILEBODY]");

  std::ifstream in(from, std::ios::binary);
  std::ofstream out(to, std::ios::binary);
  out.write(envelope.constData(), body);
  Base64Encoder encoder;
  const auto piece = std::make_unique<std::array<char, PieceBytes>>();
  const auto encoded = std::make_unique<std::array<char, base64Length(PieceBytes + 2)>>();
  while (in.read(piece->data(), PieceBytes), in.gcount() > 0)
    out.write(encoded->data(), encoder.encode(piece->data(), in.gcount(), encoded->data()));
  out.write(encoded->data(), encoder.finish(encoded->data()));
  const QByteArray rest = envelope.mid(body + static_cast<qsizetype>(strlen("[FILEBODY]")));
  out.write(rest.constData(), rest.size());
  if (!out.flush()) fail("could not write " + to);
  flush(to);
}

void Lab::fillFolder(const std::string& folder, int count, double date, int bytes) const {
  const std::string content(static_cast<size_t>(bytes), 'x');
  for (int i = 0; i < count; ++i) {
    const std::string file = numbered(folder, i, ".txt");
    const int descriptor = openNew(file);
    if (write(descriptor, content.data(), content.size()) != bytes) fail("could not write " + file);
    close(descriptor);
    setDate(file, date);
  }
}

void Lab::fillWithHoles(const std::string& folder, int count, double date,
                        const std::function<std::string(int)>& ending) const {
  for (int i = 0; i < count; ++i) {
    const std::string file = numbered(folder, i, ending(i));
    const int descriptor = openNew(file);
    if (ftruncate(descriptor, 16) != 0) fail("could not make " + file);
    close(descriptor);
    setDate(file, date);
  }
}

const Server& Lab::server() {
  if (m_sink) return m_server;
  m_sink = std::make_unique<BackgroundProcess>(workerCommand("sink", {freshFolder("tls")}));
  m_server.url = m_sink->readLine();
  m_server.caFile = m_sink->readLine();
  return m_server;
}

int Lab::requestsAnswered() { return std::stoi(m_sink->ask("requests?")); }

void setDate(const std::string& file, double seconds) {
  timespec times[2];
  times[0].tv_sec = times[1].tv_sec = static_cast<time_t>(std::floor(seconds));
  times[0].tv_nsec = times[1].tv_nsec = static_cast<long>((seconds - std::floor(seconds)) * 1e9);
  if (utimensat(AT_FDCWD, file.c_str(), times, 0) != 0) fail("could not date " + file);
}

double now() { return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count(); }

std::string findDate(double seconds) { return "@" + text(seconds, 3); }

static double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

std::vector<double> inTurn(const std::vector<Side>& sides, int turns) {
  std::vector<std::vector<double>> measured(sides.size());
  for (int turn = 0; turn < turns; ++turn)
    for (size_t i = 0; i < sides.size(); ++i) measured[i].push_back(sides[i]());
  std::vector<double> medians;
  for (const auto& values : measured) medians.push_back(median(values));
  return medians;
}

}  // namespace bench
