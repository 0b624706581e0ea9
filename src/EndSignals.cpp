#include "EndSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

static int pipeEnds[2] = {-1, -1};

static void onSignal(int) {
  const char byte = 0;
  (void)!::write(pipeEnds[1], &byte, 1);  // a full pipe already holds the news
}

EndSignals::EndSignals(std::function<void()> onEnd) {
  if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) != 0) return;  // signals then end the program as they always do
  m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [onEnd] {
    char bytes[16];
    (void)!::read(pipeEnds[0], bytes, sizeof bytes);
    onEnd();
  });
  struct sigaction action = {};
  action.sa_handler = onSignal;
  action.sa_flags = SA_RESTART;
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(number, &action, nullptr);
}

EndSignals::~EndSignals() {
  for (const int number : {SIGTERM, SIGINT, SIGHUP}) std::signal(number, SIG_DFL);
}
