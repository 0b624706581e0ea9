#pragma once
// A thread with an event loop that gives OpenSSL's memory for it back before wait() returns. Left to OpenSSL, that
// happens later, and a process that ends in between leaks it.

#include <openssl/crypto.h>

#include <QThread>

class ServiceThread : public QThread {
 protected:
  void run() override {
    exec();
    OPENSSL_thread_stop();
  }
};
