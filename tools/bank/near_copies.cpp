#include "tools/bank/near_copies.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <unordered_map>

#include "tools/bank/question_text.h"

using namespace Qt::StringLiterals;

namespace tessaly::bank {

namespace {

using HashSet = std::vector<std::size_t>;  // sorted, without repetition

struct Fingerprint {
  Place place;
  HashSet sequences;
  HashSet figures;
};

constexpr std::size_t kSequenceWords = 3;

// "2000" and "2000's", but not "$2,000".
bool IsYear(const QString& word, const QString& digits) {
  return digits.size() == 4 && (digits.startsWith("19"_L1) || digits.startsWith("20"_L1)) &&
         word.contains(digits) && !word.contains(u'$');
}

// Collects the fingerprint of one question, text by text.
class FingerprintBuilder {
public:
  void Add(const QString& text) {
    std::vector<std::size_t> words;
    for (const QString& word : text.toLower().split(u' ', Qt::SkipEmptyParts)) {
      words.push_back(HashOf(word));
    }
    const std::size_t length = std::min(kSequenceWords, words.size());
    for (std::size_t first = 0; first + length <= words.size() && length > 0; ++first) {
      const auto begin = words.begin() + static_cast<std::ptrdiff_t>(first);
      sequences_.push_back(qHashRange(begin, begin + static_cast<std::ptrdiff_t>(length)));
    }
  }

  [[nodiscard]] Fingerprint Finish(Place place) {
    MakeSet(sequences_);
    MakeSet(figures_);
    return {std::move(place), std::move(sequences_), std::move(figures_)};
  }

private:
  // A word without its punctuation; figures all hash alike and are remembered on their own.
  std::size_t HashOf(const QString& word) {
    QString letters;
    QString digits;
    for (const QChar character : word) {
      if (character.isDigit() || (character == u'.' && !digits.isEmpty())) {
        digits += character;
      } else if (character.isLetter()) {
        letters += character;
      }
    }
    while (digits.endsWith(u'.')) {
      digits.chop(1);
    }
    if (digits.isEmpty()) {
      return qHash(letters);
    }
    if (!IsYear(word, digits)) {
      figures_.push_back(qHash(digits));
    }
    return qHash(u'#');
  }

  static void MakeSet(HashSet& values) {
    std::sort(values.begin(), values.end());
    values.erase(std::unique(values.begin(), values.end()), values.end());
  }

  HashSet sequences_;
  HashSet figures_;
};

std::vector<Fingerprint> FingerprintsOf(const BankSource& bank) {
  std::vector<Fingerprint> fingerprints;
  for (const PartSource& part : bank.parts) {
    for (const QuestionSource& question : part.questions) {
      const QuestionText text = SplitQuestion(question.question);
      FingerprintBuilder builder;
      builder.Add(text.stem.join(u' '));
      for (const Choice& choice : text.choices) {
        builder.Add(choice.text);
      }
      fingerprints.push_back(builder.Finish(PlaceOf(part, question)));
    }
  }
  return fingerprints;
}

double ShareInCommon(std::size_t common, std::size_t sizeOfOne, std::size_t sizeOfOther) {
  const std::size_t all = sizeOfOne + sizeOfOther - common;
  return all == 0 ? 1 : static_cast<double>(common) / static_cast<double>(all);
}

double ShareOfFigures(const HashSet& one, const HashSet& other) {
  HashSet common;
  std::set_intersection(one.begin(), one.end(), other.begin(), other.end(),
                        std::back_inserter(common));
  return ShareInCommon(common.size(), one.size(), other.size());
}

}  // namespace

// Each question meets only those before it that share a sequence with it, found by an index from
// sequences to questions: comparing all pairs directly would take minutes for a whole bank.
std::vector<NearCopy> FindNearCopies(const BankSource& bank, const Likeness& threshold) {
  const std::vector<Fingerprint> questions = FingerprintsOf(bank);
  std::unordered_map<std::size_t, std::vector<std::size_t>> holders;
  std::vector<NearCopy> found;
  for (std::size_t later = 0; later < questions.size(); ++later) {
    const Fingerprint& copy = questions[later];
    std::vector<std::size_t> common(later, 0);
    for (const std::size_t sequence : copy.sequences) {
      std::vector<std::size_t>& earlierOnes = holders[sequence];
      for (const std::size_t earlier : earlierOnes) {
        ++common[earlier];
      }
      earlierOnes.push_back(later);
    }
    for (std::size_t earlier = 0; earlier < later; ++earlier) {
      const Fingerprint& original = questions[earlier];
      const double wording =
          ShareInCommon(common[earlier], original.sequences.size(), copy.sequences.size());
      if (wording < threshold.wording) {
        continue;
      }
      const double figures = ShareOfFigures(original.figures, copy.figures);
      if (figures >= threshold.figures) {
        found.push_back({original.place, copy.place, {wording, figures}});
      }
    }
  }
  return found;
}

void CheckNearCopies(const BankSource& bank, Findings& findings) {
  for (const NearCopy& pair : FindNearCopies(bank)) {
    findings.push_back({pair.copy, u"nearly repeats question %1 of %2 (%3 percent of its wording)"_s
                                       .arg(pair.original.number)
                                       .arg(pair.original.file)
                                       .arg(std::lround(100 * pair.likeness.wording))});
  }
}

}  // namespace tessaly::bank
