// A table in memory with a cursor: what a query answered, and what the person changes in it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "host/dataset/change_log.h"
#include "host/dataset/data_set_listener.h"
#include "host/dataset/field.h"
#include "host/dataset/loader.h"
#include "host/dataset/record_store.h"
#include "host/dataset/running_sums.h"
#include "host/ports/data_port.h"
#include "host/values/value.h"

namespace host {

enum class DataSetState { Inactive, Browse, Edit, Insert };

// Columns are typed arrays: a million rows of ten fields take well under 200 MB.
//
//     opensql(lines, "661", "SELECT * FROM D6601A WHERE NOID='2024-03记005' ORDER BY INX");
//     for (lines.First(); !lines.Eof(); lines.Next()) total += lines.FieldByName("J").AsAmount();
class TClientDataSet {
public:
    TClientDataSet();
    ~TClientDataSet();
    TClientDataSet(const TClientDataSet&) = delete;
    TClientDataSet& operator=(const TClientDataSet&) = delete;

    // Structure. Filling from a query defines the fields that the query answered; fields defined
    // before keep their type, formats and handlers when a query answers them, and stay empty
    // when it does not.
    TField& DefineField(const std::string& name, FieldType type, int size = 0);
    TField& FieldByName(const std::string& name); // without regard to case; throws when absent
    const TField& FieldByName(const std::string& name) const;
    TField* FindField(const std::string& name);
    const TField* FindField(const std::string& name) const;
    const std::vector<std::unique_ptr<TField>>& Fields() const { return fields_; }

    // Content.
    void Open(); // active and empty, with the defined fields
    void Close();
    bool Active() const { return state_ != DataSetState::Inactive; }
    std::unique_ptr<DataSetLoader> loader(); // fills the dataset; used by opensql
    void EmptyDataSet();
    void CopyFrom(const TClientDataSet& other); // structure and rows in view, cursor first
    std::size_t bytes() const;                  // memory held by the rows

    // Cursor.
    int RecordCount() const { return static_cast<int>(view_.size()); }
    int RecNo() const { return view_.empty() ? -1 : position_; } // from 0; -1 when empty
    bool Eof() const { return eof_; } // a Next() found no further row, or there is none
    bool Bof() const { return bof_; }
    bool IsEmpty() const { return RecordCount() == 0; }
    void First();
    void Last();
    void Next();
    void Prior();
    void GotoRow(int row);
    bool Locate(const std::string& field, const std::string& text); // exact, case ignored
    Value value_at(int row, int field) const; // reads without moving the cursor
    std::string text_at(int row, int field) const;
    std::string display_at(int row, int field) const;

    // Change. Moving away posts a row that was changed and drops one that was only begun.
    DataSetState State() const { return state_; }
    bool editing() const { return state_ == DataSetState::Edit || state_ == DataSetState::Insert; }
    void Append();
    void Insert(); // before the current row
    void Edit();
    void Post();
    void Cancel();
    void Delete();
    bool RowModified() const { return row_modified_; } // the row being edited was changed
    bool Modified() const;
    void MarkSaved(); // forgets the changes: Modified() is false again
    void LeaveRow();  // as moving away does: posts or drops
    // Which kinds of change wait to be saved; each asks for a right of its own.
    struct ChangeKinds {
        bool inserted, changed, deleted;
    };
    ChangeKinds Changes() const;

    // View. The filter sees the dataset on the row asked about.
    void SetFilter(std::function<bool(const TClientDataSet&)> filter);
    void SortBy(const std::string& field, bool descending); // Chinese by pinyin; "" as loaded
    const std::string& sorted_by() const { return sort_field_; }
    bool sorted_descending() const { return sort_descending_; }

    // Sum of an amount or integer field over the rows in view, kept up to date as cells change.
    Amount Sum(const std::string& field) const;

    // The statements that bring `table` to the state shown: deletes, updates, inserts by `key`.
    std::vector<std::string> ChangeStatements(const std::string& table,
                                              const std::string& key) const;

    std::function<void()> BeforePost, AfterPost, BeforeInsert, AfterInsert, BeforeEdit, AfterEdit,
        BeforeDelete, AfterDelete, AfterScroll, AfterCancel;
    std::function<void(TField*)> OnDataChange; // null: another row or the whole set

    // Renderers are not told between the two; a reset follows when something changed.
    void DisableControls() { ++disabled_; }
    void EnableControls();
    void add_listener(DataSetListener* listener);
    void remove_listener(DataSetListener* listener);

    // While it lives, fields read `row` instead of the cursor's row; nobody is told.
    class Peek {
    public:
        Peek(const TClientDataSet& dataset, int row);
        ~Peek() { dataset_.peeked_ = before_; }
        Peek(const Peek&) = delete;
        Peek& operator=(const Peek&) = delete;

    private:
        const TClientDataSet& dataset_;
        std::int64_t before_;
    };

private:
    friend class TField;
    friend class DataSetLoader;
    static constexpr std::int64_t no_row = -1;

    std::int64_t current_slot() const; // of the row that fields read; no_row when there is none
    void write(int field, const Value& value);
    void write_cell(Slot row, int field, const Value& value);
    std::vector<Value> row_values(Slot row) const;
    void begin_insert(int position);
    void move_to(int position, bool bof, bool eof);
    void need_rows(const char* operation) const;
    void remove_current();
    void drop_rows();
    void rebuild_view();
    void reset_view(bool to_first);
    bool passes(Slot row) const;
    void take_rows(RecordStore&& rows, std::vector<std::unique_ptr<TField>>&& fields);
    void tell(const std::function<void(DataSetListener&)>& news);
    void tell_reset();
    void tell_cursor();

    std::vector<std::unique_ptr<TField>> fields_;
    RecordStore store_;
    std::vector<Slot> alive_; // rows that exist, in the order they were loaded or inserted
    std::vector<Slot> view_;  // rows in view, in display order
    ChangeLog changes_;
    mutable RunningSums sums_;
    DataSetState state_ = DataSetState::Inactive;
    int position_ = 0;
    bool bof_ = true, eof_ = true;
    mutable std::int64_t peeked_ = no_row;
    std::vector<Value> original_; // of the row being edited
    bool row_modified_ = false;
    std::function<bool(const TClientDataSet&)> filter_;
    std::string sort_field_;
    bool sort_descending_ = false;
    bool in_order_ = false; // no cell was written and no row put in since the view was made
    int disabled_ = 0;
    bool reset_due_ = false;
    std::vector<DataSetListener*> listeners_;
};

} // namespace host
