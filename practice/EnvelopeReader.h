#pragma once
// Reads a SOAP request as it arrives. The text of the first Base64string is decoded, hashed and handed on piece by
// piece, so a request of gigabytes needs little memory; the envelope around it goes through a strict XML parser, which
// refuses document types. One object per request, one thread.

#include <openssl/evp.h>

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <functional>
#include <memory>

#include "practice/Base64Decoder.h"

struct SoapRequest {
  QByteArray method;  ///< local name of the first element in the SOAP body
  QString login;
  QByteArray passwordHash;
  QString fileName;
  QString trackName;       ///< text of Trackname
  QString itWorkflowName;  ///< text of ITWorkflowName
  bool hasContent = false;
  qint64 contentSize = 0;
  QByteArray contentSha256;  ///< 64 lower-case hexadecimal digits
  QString fault;             ///< why the request is no proper one; empty when it is
};

class EnvelopeReader {
 public:
  /// `content` gets the decoded bytes in order; may be empty.
  explicit EnvelopeReader(std::function<void(QByteArrayView)> content = {});

  void feed(QByteArrayView bytes);
  /// The method, as soon as its start tag has arrived; empty before.
  [[nodiscard]] QByteArray method() const { return m_method; }
  /// The envelope without the text of Base64string.
  [[nodiscard]] const QByteArray& frame() const { return m_frame; }
  /// Judges the whole. Call once, when all bytes have been fed.
  [[nodiscard]] SoapRequest finish();

 private:
  void feedContent(QByteArrayView& bytes);
  void feedFrame(QByteArrayView& bytes);
  void take(QByteArrayView decoded);
  void lookForMethod();

  struct FreeDigest {
    void operator()(EVP_MD_CTX* p) const { EVP_MD_CTX_free(p); }
  };
  enum class Place { Before, Inside, After };

  std::function<void(QByteArrayView)> m_content;
  std::unique_ptr<EVP_MD_CTX, FreeDigest> m_digest;
  Place m_place = Place::Before;
  QByteArray m_frame, m_method, m_piece;
  Base64Decoder m_decoder;
  qint64 m_size = 0;
  QString m_fault;
};
