# Tests that passed and of which nothing has changed since need not run again. Used by test.sh:
#
#   perl unchanged_tests.pl BUILD_FOLDER                 prints the numbers of the tests to run, as ctest -I takes them
#   perl unchanged_tests.pl BUILD_FOLDER JUNIT_FILE      notes those that passed in the run that JUNIT_FILE tells of
#
# A test is known by its command and the programs in it, by the small office program, and by every file of the project that
# is not compiled into a program. What looks at the sources or at the whole build always runs.
use strict;
use warnings;
use Cwd qw(abs_path);
use Digest::SHA qw(sha256_hex);
use File::Basename qw(dirname);
use File::Find qw(find);
use JSON::PP qw(decode_json);

my ($build, $junit) = @ARGV;
my $top = abs_path(dirname(__FILE__) . '/..');
$build = abs_path($build);
my $notes = "$build/Testing/passed.txt";

my $looks_at_everything =
    qr/^(install: |check: (?!(help_book|help_inlets|report_templates|tidiness_finds|unchanged_tests)$))/;

my %sum_of_file;
sub sum_of_file {
    my ($path) = @_;
    return $sum_of_file{$path} //= Digest::SHA->new(256)->addfile($path, 'b')->hexdigest;
}

sub sum_of_data {
    my @files;
    find({
        no_chdir => 1,
        wanted => sub {
            $File::Find::prune = 1 if $_ eq "$top/build" || m{/\.git$};
            push @files, $_ if -f && !m{/\.git$} && !m{\.(cpp|h|ui)$};
        }}, $top);
    push @files, grep { -f } "$build/bin/gullymark-office";
    my @settings = map { "$_=$ENV{$_}" } sort grep { /^(GULLYMARK|QT)_/ } keys %ENV;
    return sha256_hex(join("\n", @settings, map { "$_ " . sum_of_file($_) } sort @files));
}

# name => [number, sum]; without a sum where the test always runs.
sub read_tests {
    my $data = sum_of_data();
    my ($number, %tests) = (0);
    for my $test (@{decode_json(scalar `cd "$build" && ctest --show-only=json-v1`)->{tests}}) {
        my @command = @{$test->{command} // []};
        my $always = !@command || $test->{name} =~ $looks_at_everything;
        my @programs = map { sum_of_file($_) } grep { m{^/} && -f } @command;
        $tests{$test->{name}} = [++$number, $always ? undef : sha256_hex(join("\n", $data, @command, @programs))];
    }
    return %tests;
}

sub read_notes {
    open(my $file, '<', $notes) or return;
    return map { /^(\S+) (.*)$/ ? ($2 => $1) : () } <$file>;
}

sub contents {
    open(my $file, '<', $_[0]) or die "$_[0]: $!\n";
    local $/;
    return scalar(<$file>) // '';
}

my %tests = read_tests();
my %passed = read_notes();
if (defined $junit) {
    my %texts = (lt => '<', gt => '>', quot => '"', apos => "'", amp => '&');
    my $run = contents($junit);
    while ($run =~ /<testcase name="([^"]*)"[^>]*status="(\w+)"/g) {
        my ($name, $status) = ($1, $2);
        $name =~ s/&(\w+);/$texts{$1}/g;
        delete $passed{$name};
        $passed{$name} = $tests{$name}[1] if $status eq 'run' && $tests{$name} && defined $tests{$name}[1];
    }
    open(my $file, '>', $notes) or die "$notes: $!\n";
    print $file "$passed{$_} $_\n" for sort keys %passed;
    close($file) or die "$notes: $!\n";
} else {
    my @changed = grep { !defined $tests{$_}[1] || ($passed{$_} // '') ne $tests{$_}[1] } keys %tests;
    print join(',', '0,0,0', sort { $a <=> $b } map { $tests{$_}[0] } @changed), "\n";
}
