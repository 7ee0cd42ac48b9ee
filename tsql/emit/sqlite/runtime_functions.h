// The SQL functions, aggregates and collations that emitted SQLite texts rely on: the contract
// between the emitter and the engine that registers them.
#pragma once

// Conventions
//   * Values are as tsql/types/type.h says. A decimal is INTEGER (value * 10^scale) or, in its wide
//     form, a BLOB of 16 bytes: the scaled value as 128-bit two's complement, sign bit flipped,
//     big-endian, so that memcmp orders it. A function takes either form of a decimal anywhere; it
//     gives the form its line names: `narrow` INTEGER (error 8115 beyond 64 bits), `wide` BLOB.
//   * `type`, `from`, `to` are Type::packed() numbers. `s`, `sa`, `sb` are scales, `p` a precision.
//   * NULL for any argument gives NULL, unless said otherwise.
//   * All are deterministic and innocuous except those marked (v).
//   * Every failure carries the SQL Server number given; 8134 and 8115 end the statement, 245,
//     8114, 241, 242, 248, 244 end the batch.
//
// Collations
//   ZF      the database's: case, width and trailing blanks do not count; Chinese by pinyin
//   ZF_CS   the same with case counting
//   (BINARY of SQLite serves …_BIN)
//
// Conversion: the same rules as PlanParameter::how
//   zf_cast(x, from, to, style)     CAST, CONVERT and implicit conversion; a decimal comes narrow
//                                   when `to` has precision <= 18, else wide
//   zf_try_cast(x, from, to, style) NULL where zf_cast fails
//   zf_assign(x, from, to)          into a column: as zf_cast, but a too long text is 8152
//   zf_wide(x)                      decimal in the wide form, same scale
//   zf_narrow(x)                    decimal in the narrow form, same scale; 8115
//   zf_within(x, limit)             the integer x when |x| < limit; else 8115
//
// Integers
//   zf_int1(x) zf_int2(x) zf_int4(x)  x when within tinyint, smallint, int; else 8115
//   zf_add8(a,b) zf_sub8(a,b) zf_mul8(a,b)  64 bits; 8115
//   zf_sum4(a,b,...)                  added from left to right; 8115 where a partial sum is no int
//   zf_xor(a,b)                       bits that differ
//   zf_idiv(a,b) zf_imod(a,b)         towards zero; 8134. x % has the sign of the dividend
//
// Decimals
//   zf_dec_add(a,sa,b,sb,p,s) zf_dec_sub(…)   wide; result of precision p, scale s; 8115
//   zf_dec_sum(p,s,sa,a,sb,b,...)             wide; added from left to right; 8115
//   zf_dec_mul(a,sa,b,sb,p,s)                 wide; digits beyond s are rounded half away
//   zf_dec_div(a,sa,b,sb,p,s)                 wide; cut at s; 8134, 8115
//   zf_dec_mod(a,sa,b,sb,p,s)                 wide; 8134
//   zf_dec_cmp(a,sa,b,sb)                     -1, 0, 1
//   zf_dec_neg(x) zf_dec_abs(x)               wide
//   zf_money_mul(a,b)  zf_money_div(a,b)      scale 4 each, narrow; product rounded, quotient cut
//   zf_sign(x)                                -1, 0, 1 of any number
//   zf_round_dec(x,s,digits,cut)   ROUND; same form as x; cut <> 0 cuts; 8115
//   zf_round_int(x,digits,cut)     ROUND of an integer; zf_round_float(x,digits,cut)
//   zf_ceiling_dec(x,s) zf_floor_dec(x,s)     scale 0, same form as x
//   zf_dec_to_float(x,s)
//
// Floating point (float columns only; never amounts)
//   zf_fdiv(a,b)      8134
//   zf_float(x)       x when finite, else 8115
//   zf_ceiling_float(x) zf_floor_float(x)
//   zf_power(x,y) zf_sqrt(x) zf_exp(x) zf_log(x) zf_log10(x) zf_pi() zf_sin zf_cos zf_tan zf_atan
//   zf_rand(seed)     (v) seed may be NULL
//
// Texts: positions and lengths count characters
//   zf_left(x,n) zf_right(x,n) zf_substring(x,start,n)   n < 0: 536 (left, right), 537 (substring)
//   zf_len(x)  zf_datalength(x,type)  zf_ltrim(x) zf_rtrim(x) zf_trim(x) zf_upper(x) zf_lower(x)
//   zf_replace(x,from,to)   without case and width; '' as from changes nothing
//   zf_stuff(x,start,n,new)  NULL when start is outside
//   zf_charindex(what,x,start)  without case; zf_patindex(pattern,x)
//   zf_replicate(x,n) NULL when n < 0; zf_reverse(x) zf_space(n)
//   zf_str(x,length,decimals)  x float; stars when too narrow
//   zf_char(n) zf_ascii(x) zf_nchar(n) zf_unicode(x) zf_quotename(x,quote)
//   zf_format(x,type,pattern)  FORMAT with the patterns 0, #, N, yyyy MM dd …
//   zf_like(x,pattern,escape)  escape NULL: none; T-SQL rules, without case and width; 1 or 0
//   zf_like_cs(x,pattern,escape) with case
//   zf_isnumeric(x,type) zf_isdate(x)   never NULL; 0 for NULL
//   zf_newid()  (v)
//
// Dates: `part` is the full lower-case name: year quarter month dayofyear day week weekday hour
// minute second millisecond; d is datetime
//   zf_dateadd(part,n,d)  zf_datediff(part,from,to)  zf_datepart(part,d)  zf_datename(part,d)
//   zf_eomonth(d,months) date   zf_datefromparts(y,m,d) date; 289
//
// Rows and objects
//   zf_variable(slot)      (v) present value of the running routine's variable
//   zf_identity(table)     (v) next identity value of the table, by its catalogue name
//   zf_identity_seen(table,x)  (v) x, after noting that x was given by hand; 544 unless
//                              IDENTITY_INSERT of the table is on
//   zf_call(function,a,b,…)    (v) scalar function of the catalogue; arguments already in the
//                              parameters' types; result in its declared type
//   zf_object_id(name,kind)    (v) OBJECT_ID; kind may be NULL; NULL when there is none
//   zf_object_name(id)         (v)
//   zf_object_definition(id)   (v) the CREATE statement; NULL for a table
//   zf_indexproperty(id,index,property)  (v) 'IndexID' counts from 1, 'IsUnique'; NULL for others
//   zf_ident_current(table)    (v) IDENT_CURRENT: decimal(38,0)
//   zf_tombstone(rowid)        a BLOB no key has, for keys that change places
//   zf_raise(number,text)      raises that error
//   zf_percent(n,rows)         rows of TOP n PERCENT, rounded up
//
// Aggregates; those with [w] also as window functions
//   zf_single(x)             the only row's value, NULL without rows; 512 for more than one
//   zf_sum_dec(x,s) [w]      exact sum of decimals in either form, wide; 8115
//   zf_sum_int8(x) [w]       sum of bigint; 8115. (sum of SQLite serves int and narrow decimals;
//                            its overflow is 8115, too)
//   zf_string_agg(x,separator)                    in order of rows
//   zf_string_agg_by(x,separator,key,descending)  in order of key; a text key by ZF
//   zf_stdev(x) zf_stdevp(x) zf_var(x) zf_varp(x) [w]  of float
//   zf_checksum_agg(x)
//   zf_group_sums(k, key…, value…)  the integers `value…` summed by the bytes of the k keys, all
//                            groups in one BLOB, for
//   zf_groups(b)             a table of these groups: c1, c2 … the keys, then the sums; NULL for a
//                            sum of NULLs; most_group_columns at most

namespace tsql::sqlite {

inline constexpr int most_group_columns = 16;

inline constexpr const char* database_collation = "ZF";
inline constexpr const char* case_sensitive_collation = "ZF_CS";

} // namespace tsql::sqlite
