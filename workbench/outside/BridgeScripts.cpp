// The other ends of the bridges: what GNU Octave and R do before and behind the user's script. The files
// that go both ways are told in docs/file-formats.md. No name or path is ever written into a script: the
// folder comes in the environment, names stand in files.

#include "workbench/outside/Bridge.h"

namespace workbench
{
namespace
{
constexpr char const* TAKE_M = R"m(
% Brings all that is handed over into the workspace of the caller's script.
function zenqo_take ()
  folder = getenv ("ZENQO_FOLDER");
  for name = strsplit (strtrim (fileread ([folder "/in"])), "\n")
    if (! isempty (name{1}))
      assignin ("base", name{1}, take ([folder "/in-" name{1}]));
    endif
  endfor
endfunction

function object = take (path)
  file = fopen (path, "rb");
  [kind, size] = strtok (fgetl (file));
  size = sscanf (size, "%d")';
  if (strcmp (kind, "matrix"))
    object = take_numbers (file, size);
  else
    object = struct ();
    for column = 1:size(2)
      [kind, name] = strtok (fgetl (file));
      if (strcmp (kind, "number"))
        object.(name(2:end)) = take_numbers (file, [size(1), 1]);
      else
        [bytes, name] = strtok (name);
        text = fread (file, [1, str2double(bytes)], "uint8=>char");
        object.(name(2:end)) = ostrsplit (text(1:end-1), "\0")';
      endif
    endfor
  endif
  fclose (file);
endfunction

function numbers = take_numbers (file, size)
  numbers = zeros (size);
  if (! isempty (numbers))
    numbers = fread (file, size, "double=>double", 0, "ieee-le");
  endif
endfunction
)m";

constexpr char const* GIVE_M = R"m(
% Hands back what is asked for.
function zenqo_give ()
  folder = getenv ("ZENQO_FOLDER");
  for name = strsplit (strtrim (fileread ([folder "/out"])), "\n")
    if (isempty (name{1}))
      continue;
    endif
    if (! evalin ("base", ["exist (\"" name{1} "\", \"var\")"]))
      error ("the script made no \"%s\" that could be handed back\n", name{1});
    endif
    give ([folder "/out-" name{1}], name{1}, evalin ("base", name{1}));
  endfor
endfunction

function give (path, name, object)
  file = fopen (path, "wb");
  if (is_numbers (object))
    fprintf (file, "matrix %d %d\n", size (object));
    give_numbers (file, object);
  elseif (isstruct (object) && isscalar (object))
    give_dataset (file, name, object);
  else
    error (["\"%s\" is of class %s%s and size %s, and can't be handed back: what can is a matrix " ...
            "of real numbers, or a struct of columns as a dataset\n"],
           name, class (object), complex_of (object), strjoin (strsplit (num2str (size (object))), " by "));
  endif
  fclose (file);
endfunction

function give_dataset (file, name, object)
  fields = fieldnames (object);
  rows = numel (fields);
  if (rows > 0)
    rows = numel (object.(fields{1}));
  endif
  fprintf (file, "dataset %d %d\n", rows, numel (fields));
  for i = 1:numel (fields)
    column = object.(fields{i});
    if (numel (column) != rows || ! isvector (column) || ! (is_numbers (column) || iscellstr (column)))
      error (["\"%s.%s\" is no column of a dataset: columns are vectors of real numbers or cells of " ...
              "text, of one length\n"], name, fields{i});
    endif
    if (iscellstr (column))
      text = [cellfun(@(label) [label(:)' "\0"], column(:)', "UniformOutput", false){:}];
      fprintf (file, "text %d %s\n", numel (text), fields{i});
      fwrite (file, text, "uint8");
    else
      fprintf (file, "number %s\n", fields{i});
      give_numbers (file, column);
    endif
  endfor
endfunction

function word = complex_of (object)
  word = "";
  if (iscomplex (object))
    word = ", complex";
  endif
endfunction

function yes = is_numbers (object)
  yes = (isnumeric (object) || islogical (object)) && isreal (object) && ndims (object) == 2;
endfunction

function give_numbers (file, numbers)
  fwrite (file, double (full (numbers)), "double", 0, "ieee-le");
endfunction
)m";

constexpr char const* EXPLAIN_M = R"m(
% Ends with the error that ended the script. Of a script that can't be parsed "source" tells no more than
% the path; a copy that is called by its name tells the line and the reason.
function zenqo_explain ()
  problem = lasterror ();
  script = getenv ("ZENQO_SCRIPT");
  if (strcmp (problem.message, ["source: error sourcing file '" script "'"]))
    copy = [getenv("ZENQO_FOLDER") "/zenqo_script.m"];
    file = fopen (copy, "wb");
    fputs (file, fileread (script));
    fclose (file);
    try
      zenqo_script ();
    catch explained
      error ("%s\n", strrep (explained.message, copy, script));
    end_try_catch
  endif
  rethrow (problem);
endfunction
)m";

constexpr char const* ALL_R = R"r(
# Brings what is handed over into the global environment, runs the script there, hands back what is
# asked for. All of it is local, so the script may remove what it likes.
local({
  folder <- Sys.getenv("ZENQO_FOLDER")
  fail <- function(...) stop(..., call. = FALSE)

  take_texts <- function(file, rows) {
    texts <- readBin(file, "character", rows)
    Encoding(texts) <- "UTF-8"
    texts[texts == ""] <- NA
    texts
  }

  take_numbers <- function(file, count) readBin(file, "double", count, 8, endian = "little")

  take_column <- function(file, kind, rows) {
    if (kind == "text")
      return(take_texts(file, rows))
    numbers <- take_numbers(file, rows)
    numbers[is.na(numbers)] <- NA
    numbers
  }

  take <- function(name) {
    file <- file(file.path(folder, paste0("in-", name)), "rb")
    on.exit(close(file))
    head <- strsplit(readLines(file, 1), " ")[[1]]
    size <- as.integer(head[2:3])
    if (head[1] == "matrix")
      return(matrix(take_numbers(file, prod(size)), size[1], size[2]))
    columns <- list()
    for (i in seq_len(size[2])) {
      head <- strsplit(readLines(file, 1), " ")[[1]]
      columns[[head[length(head)]]] <- take_column(file, head[1], size[1])
    }
    as.data.frame(columns, stringsAsFactors = FALSE, optional = TRUE)
  }

  give_head <- function(file, ...) writeLines(enc2utf8(paste(...)), file, useBytes = TRUE)

  give_numbers <- function(file, numbers) writeBin(as.double(numbers), file, 8, endian = "little")

  is_numbers <- function(object) (is.numeric(object) || is.logical(object)) && length(dim(object)) %in% c(0, 2)

  give_column <- function(file, name, column) {
    label <- gsub("[\r\n]", " ", name)
    if (is.factor(column) || is.character(column)) {
      texts <- enc2utf8(as.character(column))
      texts[is.na(texts)] <- ""
      give_head(file, "text", format(sum(nchar(texts, "bytes")) + length(texts), scientific = FALSE), label)
      writeBin(texts, file, useBytes = TRUE)
    } else if (is_numbers(column) && is.null(dim(column))) {
      give_head(file, "number", label)
      give_numbers(file, column)
    } else {
      fail("the column \"", name, "\" holds neither numbers nor text, but ", class(column)[1])
    }
  }

  give <- function(name) {
    if (!exists(name, envir = globalenv(), inherits = FALSE))
      fail("the script made no \"", name, "\" that could be handed back")
    object <- get(name, envir = globalenv(), inherits = FALSE)
    file <- file(file.path(folder, paste0("out-", name)), "wb")
    on.exit(close(file))
    if (is.data.frame(object)) {
      give_head(file, "dataset", nrow(object), ncol(object))
      for (i in seq_along(object))
        give_column(file, names(object)[i], object[[i]])
    } else if (is_numbers(object)) {
      give_head(file, "matrix", NROW(object), NCOL(object))
      give_numbers(file, as.vector(object))
    } else {
      fail("\"", name, "\" is a ", class(object)[1], ", which can't be handed back: what can is a ",
           "vector or matrix of real numbers, or a data frame as a dataset")
    }
  }

  for (name in readLines(file.path(folder, "in")))
    assign(name, take(name), envir = globalenv())
  source(Sys.getenv("ZENQO_SCRIPT"), print.eval = TRUE, encoding = "UTF-8")
  for (name in readLines(file.path(folder, "out")))
    give(name)
})
)r";
} // namespace

Bridge const& OctaveBridge()
{
    // The folder is named again because the script may clear the path.
    static Bridge const bridge{
        OCTAVE,
        {"--quiet", "--no-gui", "--no-history", "--eval",
         "addpath (getenv (\"ZENQO_FOLDER\")); zenqo_take (); "
         "try; source (getenv (\"ZENQO_SCRIPT\")); "
         "catch; addpath (getenv (\"ZENQO_FOLDER\")); zenqo_explain (); end_try_catch; "
         "addpath (getenv (\"ZENQO_FOLDER\")); zenqo_give ();"},
        {{"zenqo_take.m", TAKE_M}, {"zenqo_explain.m", EXPLAIN_M}, {"zenqo_give.m", GIVE_M}}};
    return bridge;
}

Bridge const& RBridge()
{
    // R itself is a script of the shell that takes no more blanks than these.
    static Bridge const bridge{R_PROJECT,
                               {"--no-save", "--no-restore", "--no-echo", "-e",
                                "source(file.path(Sys.getenv(\"ZENQO_FOLDER\"),\"zenqo.R\"))"},
                               {{"zenqo.R", ALL_R}}};
    return bridge;
}
} // namespace workbench
