/// Examines documents in the background.
#ifndef IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTEXAMINER_HPP
#define IMAGEPOSITION_CORE_DOCUMENTS_DOCUMENTEXAMINER_HPP

#include "DocumentFacts.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace imageposition {

/// Has another process, with limits to its time and memory, read the document: it may be large,
/// damaged, malicious or a pipe. Reads only PDF files.
///
/// Call all methods on one thread; none waits for the document.
class DocumentExaminer {
public:
  /// Called when a document has been examined, even if nothing is known about it: on another
  /// thread, or by `tell`.
  using Changed = std::function<void()>;

  DocumentExaminer();
  /// Stops an examination.
  ~DocumentExaminer();
  DocumentExaminer(const DocumentExaminer &) = delete;
  DocumentExaminer &operator=(const DocumentExaminer &) = delete;

  /// Forgets the last document and starts with this one; an empty path means none.
  void examine(const std::string &path);
  /// The document that is or was examined; empty without one.
  const std::string &path() const noexcept { return path_; }
  /// The file's `fileVersion` before it was examined.
  const std::string &version() const noexcept { return version_; }

  /// From now on calls `changed`; before it returns, if the document has been examined already.
  void tell(Changed changed);

  /// Empty until they are known, for a document with a defect, and for one that cannot be examined
  /// within seconds.
  std::optional<DocumentFacts> facts() const;

  /// Why CUPS cannot, or may not be able to, print the document; empty until that is known.
  std::optional<DocumentDefect> defect() const;

  /// Whether there is nothing to wait for.
  bool isDone() const;

private:
  class Work;

  Changed changed_;
  std::string path_, version_;
  std::unique_ptr<Work> work_; // null without a document
};

/// What is known of a document.
struct DocumentReport {
  std::optional<DocumentFacts> facts;
  std::optional<DocumentDefect> defect;
};

/// Waits for the process that reads the document, for a few seconds at most.
DocumentReport examined(const std::string &path);

} // namespace imageposition

#endif
