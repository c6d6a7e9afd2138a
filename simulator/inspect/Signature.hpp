// A method's types, read from its encoding, in the form in which a call can be passed on.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <ffi.h>

namespace inspect {

class Signature {
  public:
    /// Null for an encoding with a type that cannot be passed on: an array, a union, a bit field, a
    /// struct of unknown content, or what no encoding has.
    static std::unique_ptr<Signature> read(std::string_view encoding);

    Signature(const Signature &) = delete;
    Signature &operator=(const Signature &) = delete;
    ~Signature();

    ffi_cif *call() { return &call_; }
    /// The encodings of the result and of each argument, receiver and selector included.
    const std::string &result() const { return codes_.front(); }
    const std::string &argument(std::size_t index) const { return codes_[index + 1]; }
    std::size_t arguments() const { return codes_.size() - 1; }

  private:
    class Reader;
    struct Struct;
    Signature();

    ffi_cif call_{};
    std::vector<std::string> codes_;
    std::vector<ffi_type *> types_;
    std::vector<std::unique_ptr<Struct>> structs_;
};

}  // namespace inspect
