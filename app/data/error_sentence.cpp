// Sentences by error number, and by category where the number says too little.
#include "app/data/error_sentence.h"

#include <algorithm>
#include <iterator>

namespace app {

namespace {

using engines::ErrorCategory;

struct NumberSentence {
    int number;
    const char* sentence;
};

constexpr NumberSentence by_number[] = {
    {515, "有必须填写的内容是空的,请补齐后再保存!"},
    {547, "这条记录与别的记录有关联,不能这样更改!"},
    {2601, "这个编号或代码已被使用,请换一个后再保存!"},
    {2627, "这个编号或代码已被使用,请换一个后再保存!"},
    {2628, "输入的文字太长,请缩短后再保存!"},
    {8152, "输入的文字太长,请缩短后再保存!"},
    {220, "数字太大,超出了可以记录的范围,请核对后重新输入!"},
    {8115, "数字太大,超出了可以记录的范围,请核对后重新输入!"},
    // What somebody typed: a formula, a query of his own.
    {102, "算式或语句的写法不对,请检查括号、逗号和运算符!"},
    {105, "引号没有成对,请补齐!"},
    {156, "算式或语句的写法不对,请检查括号、逗号和运算符!"},
    {174, "函数的参数个数不对,请核对!"},
    {191, "算式太长,或括号套得太深,请分成几步!"},
    {195, "没有这个函数,请核对函数名!"},
    {207, "没有这个名称,请核对写法!"},
    {313, "函数的参数个数不对,请核对!"},
    {4121, "没有这个函数,请核对函数名!"},
    {8144, "函数的参数个数不对,请核对!"},
    {8134, "计算中出现了除以零,请检查公式或数据!"},
};

struct CategorySentence {
    ErrorCategory category;
    const char* sentence;
};

constexpr CategorySentence by_category[] = {
    {ErrorCategory::syntax, "数据库不能执行这条语句,请把下面的说明交给管理员!"},
    {ErrorCategory::constraint, "数据违反了帐套的规则,没有保存,请核对后再试!"},
    {ErrorCategory::conversion, "有一项内容不是要求的数字或日期,请核对后再试!"},
    {ErrorCategory::arithmetic, "数字超出了可以计算的范围,请核对后再试!"},
    {ErrorCategory::transaction, "操作没有完整执行,已全部撤消,请重新操作!"},
    {ErrorCategory::busy, "别的用户正在写入这个帐套,请稍候再试!"},
    {ErrorCategory::interrupted, "操作已取消,没有改动任何数据!"},
    {ErrorCategory::read_only, "帐套只能读取,不能写入,请检查文件和文件夹的权限!"},
    {ErrorCategory::disk_full, "磁盘空间不足,没有保存,请清理磁盘后再试!"},
    {ErrorCategory::damaged, "帐套文件已损坏,请停止使用并从备份恢复!"},
    {ErrorCategory::foreign_file, "这个文件不是帐套!"},
    {ErrorCategory::newer_file, "帐套由更新版本的程序建立,请先升级本程序!"},
    {ErrorCategory::access, "打不开帐套文件,请检查路径和权限!"},
    {ErrorCategory::io, "读写磁盘时出错,请检查磁盘后再试!"},
    {ErrorCategory::internal, "程序内部出错,没有更改任何数据,请把下面的说明交给管理员!"},
};

} // namespace

std::string sentence_for(const engines::Error& error) {
    // A text raised in the database on purpose is already meant for the person.
    if (error.category == ErrorCategory::user) return error.text;
    const auto number = std::find_if(std::begin(by_number), std::end(by_number),
                                     [&](const auto& row) { return row.number == error.number; });
    if (number != std::end(by_number)) return number->sentence;
    const auto category =
        std::find_if(std::begin(by_category), std::end(by_category),
                     [&](const auto& row) { return row.category == error.category; });
    return category->sentence;
}

} // namespace app
