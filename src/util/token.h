/**
 * @file
 * Tokens: a word of a line, a type with its value, the value behind a name.
 */
#ifndef DAKSDP_UTIL_TOKEN_H
#define DAKSDP_UTIL_TOKEN_H

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Takes the next token of a range.
 * @param base start of the range
 * @param offset characters behind `base` at which to start; blanks there are skipped
 * @param end one past the last character; with a delimiter `end` itself must be readable
 * @param[out] token_start first character of the token
 * @param[out] token_end one past the token; `end` plus one when the delimiter is absent; unwritten when
 *         nothing but blanks is left
 * @param delimiter pointer to the character that ends the token, or null for white space
 * @return 1 if the token is not empty, else 0
 */
int get_token(const char *base, int offset, const char *end, const char **token_start, const char **token_end,
              const char *delimiter);

/**
 * Splits a piece into a type, the first delimiter and a value. Both parts are trimmed.
 * @param position start of the piece
 * @param end one past the last character; `end` itself must be readable
 * @param[out] type 200 characters for the type
 * @param[out] value 200 characters for the value; unwritten unless the result is 2
 * @param[out] next where the last part ended, at most `end` plus one; may be null
 * @param first_delimiter ends the type; null for white space. Behind "=" a value is required.
 * @param second_delimiter ends the value; null for white space
 * @return 2 for a type and a value, 1 for a bare type, 0 for none, for a missing required value, or, with an
 *         assertion report, for a part of 200 characters or more
 */
int get_type_and_value(const char *position, const char *end, char *type, char *value, const char **next,
                       const char *first_delimiter, const char *second_delimiter);

/**
 * Reads the value behind a name.
 * @param line terminated text such as "ptime:20"
 * @param name the name; it matches as a case-sensitive prefix of the line
 * @param separator text whose first occurrence ends the name; the value starts one character behind its first
 *         character
 * @param[out] destination 256 characters for the value; unwritten when the line holds no separator
 * @return 1 if the name matched; 0 if not, or, with a log line and an assertion report, if the value is
 *         longer than 255 characters
 */
int find_type_return_value(const char *line, const char *name, const char *separator, char *destination);

#ifdef __cplusplus
}
#endif

#endif
