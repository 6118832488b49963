# Run by help_texts.sh in the folder of the sources.
use strict;
use warnings;

my $failed = 0;

sub complain {
    print "@_\n";
    $failed = 1;
}

sub read_text {
    my ($path) = @_;
    open(my $file, '<', $path) or die "$path: $!\n";
    local $/;
    return <$file>;
}

# The text of a page as a reader sees it; the cells of a table row stand between bars.
sub page_text {
    my ($html) = @_;
    $html =~ s/<style.*?<\/style>//gs;
    $html =~ s/\s+/ /g;
    $html =~ s/<\/t[dh]> ?<t[dh][^>]*>/|/g;
    $html =~ s/<\/?t[drh][^>]*>/|/g;
    $html =~ s/<[^>]+>//g;
    $html =~ s/&nbsp;/ /g;
    $html =~ s/&quot;/"/g;
    $html =~ s/&lt;/</g;
    $html =~ s/&gt;/>/g;
    $html =~ s/&reg;/\xC2\xAE/g;
    $html =~ s/&deg;/\xC2\xB0/g;
    $html =~ s/&amp;/&/g;
    return $html;
}

my %pages = map { /([^\/]+)\.html$/ => page_text(read_text($_)) } glob('resources/help/*.html');
my $help = join("\n", values %pages);

sub expect_in_help {
    my ($text, $source) = @_;
    complain("the help does not have \"$text\" of $source") if index($help, $text) < 0;
}

# Texts of boxes, titles, lists and captions: what a box begins with, and every literal of three words and more that is
# no statement. What the two files left out say reaches no box.
my $unseen = qr{^src/(engine/step|reports/cell_steps)\.cpp$};
for my $path (split /\n/, `find src/engine src/store src/editor src/reports -name '*.cpp' -o -name '*.h'`) {
    next if $path =~ $unseen;
    my $source = read_text($path);
    $source =~ s{//[^\n]*}{}g;
    while ($source =~ /((?:"(?:\\.|[^"\\])*"\s*)+)/g) {
        my $literal = $1;
        $literal =~ s/"\s*"//g;
        $literal =~ s/^"|"\s*$//g;
        for my $text (split /\\r\\n/, $literal) {
            next if $text !~ /^ ?[-A-Z]/ || ($text =~ tr/ //) < 2 || $text !~ /[A-Za-z]{2}/;
            next if $text =~ /[|=]|^ ?(SELECT|UPDATE|ALTER|WHERE|TOTAL_DISCHARGE AS|FROM)/i;
            $text =~ s/^ ?- | (- )?$//g;
            expect_in_help($text, $path);
        }
    }
    while ($source =~ /\b(?:tell|tell_titled|ask)\(\s*"((?:\\.|[^"\\])+)"/g) {
        (my $text = $1) =~ s/^ ?- | (- )?$//g;
        expect_in_help($text, $path);
    }
    while ($source =~ /\{"mnu\w*", "([^"]+)"/g) {
        (my $caption = $1) =~ s/&//;
        expect_in_help($caption, $path);
    }
}
for my $path (glob('src/shell/windows/*_view.ui')) {
    my $source = read_text($path);
    while ($source =~ /<string>(?:&amp;)?([A-Z][A-Z \/]{3,})<\/string>/g) {
        expect_in_help($1, $path) unless $path =~ /renumber/;
    }
}

# Pages and commands of the reviewer's window stand on the page about it.
for my $path (glob('src/shell/review/*.cpp')) {
    my $source = read_text($path);
    while ($source =~ /\badd_command\(\s*\w+,\s*"\w+",\s*"([^"]+)"|\baddTab\(\w+, QStringLiteral\("([^"]+)"\)/g) {
        (my $caption = $1 // $2) =~ s/&//;
        complain("checking.html does not have \"$caption\" of $path") if index($pages{checking}, $caption) < 0;
    }
}

# The page on defaults has those of a new inlet, the last one where a field has two.
my %default_named = (
    allowable_spread => 'ALLOWABLE SPREAD',
    cboLCOUG         => 'LENGTH OF CURB OPENING',
    cboLength        => 'INLET LENGTH',
    curb_height      => 'CURB HEIGHT',
    txtAngle         => '',                             # fixed by the throat
    txtArea          => 'GRATE AREA',
    txtPeri          => 'GRATE PERIMETER',
    txtS             => 'GUTTER LONGITUDINAL SLOPE',
    txtSdashW        => 'INLET CROSS SLOPE',
    txtSw            => 'GUTTER CROSS SLOPE',
    txtSx            => 'PAVEMENT CROSS SLOPE',
    txtW             => 'GUTTER WIDTH',
    txtWa            => 'WIDTH OF LOCAL DEPRESSION',
    txtWg            => 'GRATE WIDTH',
    txta             => 'AMOUNT OF LOCAL DEPRESSION',
    txthco           => 'HEIGHT OF CURB OPENING',
    txtn             => 'MANNINGS',
    txtslotw         => 'SLOT WIDTH',
    txtzl            => 'Side slope ratios',
    txtzr            => 'Side slope ratios',
);
my ($new_inlet) = read_text('src/editor/form/default_texts.cpp') =~ /new_inlet_defaults = (.*?)\n\}\);/s;
my %defaults = map { /\{(\w+), +"(.*?)", +"(.*?)"\}/ ? ($1 => [$2, $3]) : () } split /\n/, $new_inlet // '';
complain('src/editor/form/default_texts.cpp has no defaults of a new inlet') unless %defaults;
for my $field (sort keys %defaults) {
    my $name = $default_named{$field};
    if (!defined $name) {
        complain("$field has no name in the help");
        next;
    }
    my ($english, $metric) = map { quotemeta } @{$defaults{$field}};
    next if $name eq '' || $pages{defaults} =~ /\|\Q$name\E\|$english( \w+)?\|$metric( \w+)?\|/;
    complain("defaults.html does not have @{$defaults{$field}} for $name");
}

# A table of tests/cases as a list of rows by heading.
sub read_table {
    my @lines = split /\n/, read_text("tests/cases/$_[0]");
    my @heading = split /\t/, shift @lines;
    return map { my %row; @row{@heading} = split /\t/, $_, -1; \%row } @lines;
}

for (split /\n/, read_text('tests/cases/standards.tsv')) {
    my ($table, $kind, @cells) = split /\t/;
    s/^ +| +$//g for @cells;
    expect_in_help('|' . join('|', @cells) . '|', "table $table");
}

# The first inlet of each kind is the example of its page. All curb inlets are the chain of the page on carryover.
my %page_of = (
    'Curb Inlet'                       => 'curb',
    'Grate Inlet'                      => 'grate',
    'Combination Curb and Grate Inlet' => 'combo',
    'Slotted Inlet'                    => 'slotted',
    'Grate Inlet in a Ditch'           => 'ditch',
);
my %seen;
for my $row (read_table('solves_help.tsv')) {
    my $page = $page_of{$row->{INLET_TYPE}} . ($row->{INLET_LOCATION} eq 'SUMP' ? '_sump' : '_grade');
    my @expected;
    if (!$seen{$page}++) {
        push @expected, map { [$page, $_] } grep { /^=(?!solved|messages|INLETXSLOPE|GRATEPERCLOG)/ } keys %$row;
        push @expected, [$page, 'TOTAL_DISCHARGE'];
    }
    if ($row->{INLET_TYPE} eq 'Curb Inlet') {
        push @expected, map { ['carryover', $_] } 'TOTAL_DISCHARGE', '=QCARRY';
    }
    for (@expected) {
        my ($where, $column) = @$_;
        my $value = $row->{$column};
        next if $value eq '' || index($pages{$where}, "|$value|") >= 0;
        complain("$where.html does not have the $value of $column");
    }
}
complain('tests/cases/solves_help.tsv lacks a kind of inlet') if keys %seen != 10;
exit $failed;
