#pragma once

#include <concepts>
#include <type_traits>
#include <utility>

// What scripts/mutate puts into the copy of the program that it changes: every change stands beside
// what the source says, and MUTANTS in the environment (their numbers, commas between them) chooses
// those that are in force.
namespace mutants {

inline constexpr int mostMutants = 1 << 16;
/// Whether a mutant is in force.
extern bool inForce[mostMutants];
/// Whether this is a recording run: no mutant is in force, and what is reached is noted.
extern bool recording;
enum Note { Reached = 1, NoSuchChange = 2 };
void Write(int mutant, Note note);

inline bool Chosen(int mutant) {
  if (recording) {
    Write(mutant, Reached);
  }
  return inForce[mutant];
}

/// A place whose value is found at run time.
struct At {
  int Mutant;
  bool On() const { return Chosen(Mutant); }
  At Next() const { return {Mutant + 1}; }
};

/// A place that the compiler may have to evaluate, where nothing is changed then.
struct Folded {
  int Mutant;
  constexpr bool On() const { return !std::is_constant_evaluated() && Chosen(Mutant); }
  constexpr Folded Next() const { return {Mutant + 1}; }
};

/// Notes that what the change would make of the place is no C++.
template <class Place>
constexpr void Missing(Place place) {
  if (!std::is_constant_evaluated() && recording) {
    Write(place.Mutant, NoSuchChange);
  }
}

template <class R, class A, class B, class Other>
constexpr bool fits = requires(Other other, A&& a, B&& b) {
  { other(std::forward<A>(a), std::forward<B>(b)) } -> std::convertible_to<R>;
};

/// The operation of the source, or the one of the others that is in force.
template <class Was, class Other, class... Others, class Place, class A, class B>
constexpr auto Either(Place place, A&& a, B&& b)
    -> decltype(Was()(std::forward<A>(a), std::forward<B>(b))) {
  using R = decltype(Was()(std::forward<A>(a), std::forward<B>(b)));
  if constexpr (fits<R, A, B, Other>) {
    if (place.On()) {
      return Other()(std::forward<A>(a), std::forward<B>(b));
    }
  } else {
    Missing(place);
  }
  if constexpr (sizeof...(Others) == 0) {
    return Was()(std::forward<A>(a), std::forward<B>(b));
  } else {
    return Either<Was, Others...>(place.Next(), std::forward<A>(a), std::forward<B>(b));
  }
}

#define MUTANTS_OPERATION(name, sign)                             \
  struct name {                                                   \
    template <class A, class B>                                   \
    constexpr auto operator()(A&& a, B&& b) const                 \
        -> decltype(std::forward<A>(a) sign std::forward<B>(b)) { \
      return std::forward<A>(a) sign std::forward<B>(b);          \
    }                                                             \
  };
MUTANTS_OPERATION(IsEqual, ==)
MUTANTS_OPERATION(IsUnequal, !=)
MUTANTS_OPERATION(IsLess, <)
MUTANTS_OPERATION(IsLessOrEqual, <=)
MUTANTS_OPERATION(IsGreater, >)
MUTANTS_OPERATION(IsGreaterOrEqual, >=)
MUTANTS_OPERATION(Sum, +)
MUTANTS_OPERATION(Difference, -)
MUTANTS_OPERATION(Product, *)
MUTANTS_OPERATION(Quotient, /)
MUTANTS_OPERATION(Added, +=)
MUTANTS_OPERATION(Subtracted, -=)
#undef MUTANTS_OPERATION

#define MUTANTS_PLACE(name, ...)                                                       \
  template <class Place, class A, class B>                                             \
  constexpr auto name(Place place, A&& a, B&& b)                                       \
      ->decltype(Either<__VA_ARGS__>(place, std::forward<A>(a), std::forward<B>(b))) { \
    return Either<__VA_ARGS__>(place, std::forward<A>(a), std::forward<B>(b));         \
  }
MUTANTS_PLACE(Equal, IsEqual, IsUnequal)
MUTANTS_PLACE(Unequal, IsUnequal, IsEqual)
MUTANTS_PLACE(Less, IsLess, IsLessOrEqual, IsGreaterOrEqual)
MUTANTS_PLACE(Greater, IsGreater, IsGreaterOrEqual, IsLessOrEqual)
MUTANTS_PLACE(LessOrEqual, IsLessOrEqual, IsLess, IsGreater)
MUTANTS_PLACE(GreaterOrEqual, IsGreaterOrEqual, IsGreater, IsLess)
MUTANTS_PLACE(Plus, Sum, Difference)
MUTANTS_PLACE(Minus, Difference, Sum)
MUTANTS_PLACE(Times, Product, Quotient)
MUTANTS_PLACE(Over, Quotient, Product)
MUTANTS_PLACE(Add, Added, Subtracted)
MUTANTS_PLACE(Subtract, Subtracted, Added)
#undef MUTANTS_PLACE

template <class Place>
constexpr bool Truth(Place place, bool value) {
  return value != place.On();
}

template <class Place, class T>
constexpr T Number(Place place, T value) {
  return place.On() ? static_cast<T>(value == T(0) ? T(1) : value + T(1)) : value;
}

}  // namespace mutants
