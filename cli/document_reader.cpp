#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <unordered_set>
#include <utility>

#include "cli/document.h"
#include "settings/settings_format.h"
#include "store/site_name.h"
#include "strings/printable_text.h"

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SimpleString;

namespace {

// What the library may take for the values of a document.
constexpr std::size_t kMostMemory = std::size_t{2} << 30;

using NameSet = std::unordered_set<std::string>;

// False when the digits are none, or those of a zero byte.
bool ParseBytes(std::string_view digits, std::string* bytes) {
  constexpr std::size_t kDigits = 2;  // for each byte
  while (!digits.empty()) {
    const char* const end = digits.data() + std::min(kDigits, digits.size());
    unsigned char byte = 0;
    const auto result = std::from_chars(digits.data(), end, byte, 16);
    if (result.ptr != digits.data() + kDigits || byte == 0) return false;
    bytes->push_back(static_cast<char>(byte));
    digits.remove_prefix(kDigits);
  }
  return true;
}

// Turns parsed JSON into a document. Remembers where in it it is.
class DocumentReader {
 public:
  bool Read(const json_t* root, Document* document) {
    if (!CheckMembers(root,
                      {"format", "global", "trusted_locations", "sites"})) {
      return false;
    }
    const auto read_global = [&](const json_t* value) {
      return ReadEntries(value, /*is_global=*/true,
                         &document->global.emplace());
    };
    const auto read_location = [&](const json_t* value) {
      std::string& path = document->trusted_locations->emplace_back();
      return ReadText(value, &path) && (!path.empty() || Fail("is empty"));
    };
    const auto read_locations = [&](const json_t* value) {
      document->trusted_locations.emplace();
      return Elements(value, read_location);
    };
    const auto read_sites = [&](const json_t* value) {
      NameSet seen;
      document->sites.emplace();
      return Elements(value, [&](const json_t* site) {
        return ReadSite(site, &seen, &document->sites->emplace_back());
      });
    };
    const auto read_format = [this](const json_t* value) {
      const char* format = json_string_value(value);
      return (format && std::strcmp(format, kDocumentFormat) == 0) ||
             Fail(std::string("is not \"") + kDocumentFormat + '"');
    };
    return Member(root, "format", read_format) &&
           OptionalMember(root, "global", read_global) &&
           OptionalMember(root, "trusted_locations", read_locations) &&
           OptionalMember(root, "sites", read_sites);
  }
  // "MEMBER: what is wrong".
  [[nodiscard]] std::string Problem() const {
    return (path_.empty() ? "the document" : path_) + ": " + problem_;
  }

 private:
  // One step deeper into the document, and back at the end of its life unless
  // something is wrong there.
  class Step {
   public:
    Step(DocumentReader* reader, std::string_view member) : Step(reader) {
      if (size_ > 0) reader_->path_ += '.';
      reader_->path_ += PrintableExcerpt(member, kLongestShown);
    }
    Step(DocumentReader* reader, std::size_t index) : Step(reader) {
      reader_->path_ += '[';
      reader_->path_ += std::to_string(index);
      reader_->path_ += ']';
    }
    ~Step() {
      if (reader_->problem_.empty()) reader_->path_.resize(size_);
    }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

   private:
    explicit Step(DocumentReader* reader)
        : reader_(reader), size_(reader->path_.size()) {}
    static constexpr std::size_t kLongestShown = 60;
    DocumentReader* reader_;
    std::size_t size_;
  };

  bool Fail(const std::string& what) {
    problem_ = what;
    return false;
  }

  bool CheckMembers(const json_t* object,
                    std::initializer_list<std::string_view> known) {
    if (!json_is_object(object)) return Fail("is not an object");
    void* member = json_object_iter(const_cast<json_t*>(object));
    for (; member;
         member = json_object_iter_next(const_cast<json_t*>(object), member)) {
      const std::string_view name = json_object_iter_key(member);
      if (std::ranges::count(known, name) > 0) continue;
      const Step step(this, name);
      return Fail("is an unknown member");
    }
    return true;
  }

  // Calls `read` for the member; false when there is none.
  template <typename Reading>
  bool Member(const json_t* object, const char* name, Reading read) {
    const Step step(this, std::string_view(name));
    const json_t* value = json_object_get(object, name);
    return value ? read(value) : Fail("is missing");
  }

  // The same for one that may be absent.
  template <typename Reading>
  bool OptionalMember(const json_t* object, const char* name, Reading read) {
    return !json_object_get(object, name) || Member(object, name, read);
  }

  // Calls `read` for each element.
  template <typename Reading>
  bool Elements(const json_t* array, Reading read) {
    if (!json_is_array(array)) return Fail("is not an array");
    for (std::size_t i = 0; i < json_array_size(array); ++i) {
      const Step step(this, i);
      if (!read(json_array_get(array, i))) return false;
    }
    return true;
  }

  bool ReadText(const json_t* value, std::string* text) {
    if (const char* string = json_string_value(value)) {
      text->assign(string, json_string_length(value));
    } else if (!json_is_object(value)) {
      return Fail("is not a text");
    } else {
      if (!CheckMembers(value, {"bytes"})) return false;
      const bool is_read = Member(value, "bytes", [&](const json_t* bytes) {
        const char* digits = json_string_value(bytes);
        return (digits && ParseBytes(digits, text)) ||
               Fail("is not a text of hexadecimal digits, two for each byte");
      });
      if (!is_read) return false;
    }
    return text->size() <= SMImplementation::kLongestText ||
           Fail("is longer than " +
                std::to_string(SMImplementation::kLongestText) + " bytes");
  }

  bool ReadNumberWord(const json_t* object, double* number) {
    using Limits = std::numeric_limits<double>;
    constexpr std::pair<std::string_view, double> kWords[] = {
        {"NaN", Limits::quiet_NaN()},
        {"Infinity", Limits::infinity()},
        {"-Infinity", -Limits::infinity()},
        {"-0", -0.0}};
    if (!CheckMembers(object, {"number"})) return false;
    return Member(object, "number", [&](const json_t* value) {
      const char* text = json_string_value(value);
      for (const auto& [word, meaning] : kWords) {
        *number = meaning;
        if (text && word == text) return true;
      }
      return Fail("is not \"NaN\", \"Infinity\", \"-Infinity\" or \"-0\"");
    });
  }

  bool ReadElement(const json_t* object, SDIVector* elements) {
    if (!CheckMembers(object, {"name", "value"})) return false;
    std::string name;
    const bool has_name = Member(object, "name", [&](const json_t* value) {
      if (!ReadText(value, &name)) return false;
      return !name.empty() || Fail("is empty");
    });
    return has_name && Member(object, "value", [&](const json_t* value) {
             if (json_object_get(value, "array")) {
               return Fail("is an array within an array");
             }
             SettingDataItem item;
             if (!ReadValue(value, name.c_str(), &item)) return false;
             elements->addElement(&item);
             return true;
           });
  }

  bool ReadObjectValue(const json_t* object, SimpleString&& name,
                       SettingDataItem* item) {
    if (json_object_get(object, "number")) {
      double number = 0;
      if (!ReadNumberWord(object, &number)) return false;
      *item = SettingDataItem(std::move(name), number);
      return true;
    }
    if (json_object_get(object, "array")) {
      if (!CheckMembers(object, {"array"})) return false;
      auto elements = std::make_unique<SDIVector>();
      const bool is_read = Member(object, "array", [&](const json_t* array) {
        return Elements(array, [&](const json_t* element) {
          return ReadElement(element, elements.get());
        });
      });
      if (is_read) *item = SettingDataItem(std::move(name), elements.release());
      return is_read;
    }
    std::string text;
    if (!ReadText(object, &text)) return false;
    *item = SettingDataItem(std::move(name), new SimpleString(text.c_str()));
    return true;
  }

  bool ReadValue(const json_t* value, SimpleString&& name,
                 SettingDataItem* item) {
    if (json_is_boolean(value)) {
      *item = SettingDataItem(std::move(name), json_boolean_value(value) != 0);
    } else if (json_is_number(value)) {
      *item = SettingDataItem(std::move(name), json_number_value(value));
    } else if (json_is_string(value) || json_is_object(value)) {
      return ReadObjectValue(value, std::move(name), item);
    } else {
      return Fail("is no value of a setting");
    }
    return true;
  }

  bool ReadEntry(const json_t* object, bool is_global, NameSet* seen,
                 Document::Entries* entries) {
    if (!CheckMembers(object, {"key", "value"})) return false;
    std::string key;
    const auto read_key = [&](const json_t* value) {
      if (!ReadText(value, &key)) return false;
      if (is_global && std::ranges::count(kKeysWithOwnMember, key) > 0) {
        return Fail("has a member of its own in the document");
      }
      return seen->insert(key).second || Fail("is there twice");
    };
    if (!Member(object, "key", read_key)) return false;
    return Member(object, "value", [&](const json_t* value) {
      SettingDataItem item;
      if (!ReadValue(value, key.c_str(), &item)) return false;
      entries->push_back(std::move(item));
      return true;
    });
  }

  bool ReadEntries(const json_t* array, bool is_global,
                   Document::Entries* entries) {
    NameSet seen;
    return Elements(array, [&](const json_t* entry) {
      return ReadEntry(entry, is_global, &seen, entries);
    });
  }

  bool ReadSite(const json_t* object, NameSet* seen, Document::Site* site) {
    if (!CheckMembers(object, {"site", "listed", "settings"})) return false;
    const auto read_name = [&](const json_t* value) {
      std::string name;
      if (!ReadText(value, &name)) return false;
      site->name = SimpleString(name.c_str());
      if (!SASM::IsSiteName(site->name)) return Fail("can be no site");
      return seen->insert(name).second || Fail("is there twice");
    };
    const auto read_listed = [&](const json_t* value) {
      site->is_listed = json_boolean_value(value) != 0;
      return json_is_boolean(value) || Fail("is neither true nor false");
    };
    return Member(object, "site", read_name) &&
           OptionalMember(object, "listed", read_listed) &&
           Member(object, "settings", [&](const json_t* value) {
             return ReadEntries(value, /*is_global=*/false, &site->settings);
           });
  }

  std::string path_;
  std::string problem_;
};

struct FileCloser {
  void operator()(std::FILE* file) const {
    if (file != stdin) std::fclose(file);
  }
};

// False with a problem when the file cannot be read, or is too large.
bool ReadText(const char* name, std::string* text, std::string* problem) {
  constexpr std::size_t kStep = std::size_t{1} << 20;
  const bool is_input = std::strcmp(name, "-") == 0;
  const std::unique_ptr<std::FILE, FileCloser> file(
      is_input ? stdin : std::fopen(name, "rbe"));
  std::size_t count = file ? kStep : 0;
  while (count > 0 && text->size() <= kLargestDocument) {
    const std::size_t size = text->size();
    text->resize(size + kStep);
    count = std::fread(text->data() + size, 1, kStep, file.get());
    text->resize(size + count);
  }
  if (text->size() > kLargestDocument) {
    *problem =
        " is larger than " + std::to_string(kLargestDocument >> 20) + " MiB";
  } else if (!file || std::ferror(file.get())) {
    *problem = std::string(" ") + std::strerror(errno);
  }
  return problem->empty();
}

// "LINE:COLUMN: "
std::string PlaceOf(const json_error_t& error) {
  std::string place = std::to_string(error.line);
  place += ':';
  place += std::to_string(error.column);
  return place += ": ";
}

}  // namespace

bool ParseDocument(std::string_view text, Document* document,
                   std::string* problem) {
  json_error_t error = {};
  const JsonMemoryLimit limit(kMostMemory);
  const Json root(json_loadb(text.data(), text.size(),
                             JSON_REJECT_DUPLICATES | JSON_DECODE_INT_AS_REAL,
                             &error));
  DocumentReader reader;
  if (!root) {
    *problem = error.text[0] ? PlaceOf(error) + Printable(error.text)
                             : " takes too much memory";
  } else if (!reader.Read(root.get(), document)) {
    problem->append(" ").append(reader.Problem());
  }
  return problem->empty();
}

bool ReadDocument(const char* file, Document* document, std::string* problem) {
  std::string text;
  if (ReadText(file, &text, problem) &&
      ParseDocument(text, document, problem)) {
    return true;
  }
  *problem = Printable(file) + ":" + *problem;
  return false;
}
