#pragma once

#include <future>
#include <thread>

namespace trelonit {

/// Reads the list of the system's fonts, the longest part of a start, beside the others: while the
/// application reaches the display, and while the forms are loaded.
class FontsAhead {
 public:
  /// Before there is an application.
  FontsAhead();
  FontsAhead(const FontsAhead&) = delete;
  FontsAhead& operator=(const FontsAhead&) = delete;
  ~FontsAhead();

  /// Until the list has been read. Who asks for a font before reads it all once more.
  void WaitForList();

  /// The toolkit takes the list over. Made once there is an application, and gone before it: the
  /// reading ends with this, if not before.
  class Taken {
   public:
    explicit Taken(FontsAhead& fonts);
    Taken(const Taken&) = delete;
    Taken& operator=(const Taken&) = delete;
    ~Taken();

   private:
    FontsAhead& fonts_;
  };

 private:
  void TellReady(bool ready);
  void Wait();

  /// Whether the toolkit is there; a start that ends before has none.
  std::promise<bool> ready_;
  bool told_ = false;
  std::promise<void> listRead_;
  std::thread reading_;
};

}  // namespace trelonit
