-- Models of the primitives of the vendor's devices that a Mico8 may be made of, as far as their users' guides describe
-- them: truth tables, flip-flops, distributed memories, and the memories that are modules with parameters. Without delays; the
-- global set and reset is not among them. For any library that a core takes them from.

library ieee;
use ieee.std_logic_1164.all;

package prove_bits is

    type nibbles is array (0 to 15) of std_logic_vector(3 downto 0);

    -- A number without unknown bits; those count as 0.
    function number_of(value : std_logic_vector) return natural;

    -- The bit of a truth table.
    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic;

    -- Hexadecimal digits with 0x in front; the first one is that of address 15.
    function initial(text : string) return nibbles;

end package prove_bits;

package body prove_bits is

    function number_of(value : std_logic_vector) return natural is
        variable number : natural := 0;
    begin
        for i in value'range loop
            number := number * 2;
            if value(i) = '1' or value(i) = 'H' then
                number := number + 1;
            end if;
        end loop;
        return number;
    end function number_of;

    function bit_at(truth : bit_vector; place : std_logic_vector) return std_logic is
        constant bits : bit_vector(truth'length - 1 downto 0) := truth;
    begin
        return to_stdulogic(bits(number_of(place)));
    end function bit_at;

    function initial(text : string) return nibbles is
        variable values : nibbles := (others => "0000");
        variable digit  : natural;
        variable c      : character;
    begin
        for i in 0 to 15 loop
            exit when i > text'length - 3;
            c := text(text'high - i);
            case c is
                when '0' to '9' => digit := character'pos(c) - character'pos('0');
                when 'a' to 'f' => digit := character'pos(c) - character'pos('a') + 10;
                when 'A' to 'F' => digit := character'pos(c) - character'pos('A') + 10;
                when others => digit := 0;
            end case;
            for n in 0 to 3 loop
                if digit / 2 ** n mod 2 = 1 then
                    values(i)(n) := '1';
                end if;
            end loop;
        end loop;
        return values;
    end function initial;

end package body prove_bits;

library ieee;
use ieee.std_logic_1164.all;

package components is

    component LUT4 is
        generic (
            INIT : std_logic_vector(15 downto 0) := X"0000"
        );
        port (
            A : in  std_logic;
            B : in  std_logic;
            C : in  std_logic;
            D : in  std_logic;
            Z : out std_logic
        );
    end component;

    component ORCALUT4 is
        generic (
            INIT : bit_vector(15 downto 0) := X"0000"
        );
        port (
            A : in  std_logic;
            B : in  std_logic;
            C : in  std_logic;
            D : in  std_logic;
            Z : out std_logic
        );
    end component;

    component PFUMX is
        port (
            ALUT : in  std_logic;
            BLUT : in  std_logic;
            C0 : in  std_logic;
            Z : out std_logic
        );
    end component;

    component L6MUX21 is
        port (
            D0 : in  std_logic;
            D1 : in  std_logic;
            SD : in  std_logic;
            Z : out std_logic
        );
    end component;

    component MUX21 is
        port (
            D0 : in  std_logic;
            D1 : in  std_logic;
            SD : in  std_logic;
            Z : out std_logic
        );
    end component;

    component INV is
        port (
            A : in  std_logic;
            Z : out std_logic
        );
    end component;

    component AND2 is
        port (
            A : in  std_logic;
            B : in  std_logic;
            Z : out std_logic
        );
    end component;

    component OR2 is
        port (
            A : in  std_logic;
            B : in  std_logic;
            Z : out std_logic
        );
    end component;

    component XOR2 is
        port (
            A : in  std_logic;
            B : in  std_logic;
            Z : out std_logic
        );
    end component;

    component VHI is
        port (
            Z : out std_logic
        );
    end component;

    component VLO is
        port (
            Z : out std_logic
        );
    end component;

    component FD1P3AX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1P3AY is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1P3BX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            PD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1P3DX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            CD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1P3IX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            CD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1P3JX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            SP : in  std_logic;
            CK : in  std_logic;
            PD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3AX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3AY is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3BX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            PD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3DX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            CD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3IX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            CD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component FD1S3JX is
        generic (
            GSR : string := "ENABLED"
        );
        port (
            D : in  std_logic;
            CK : in  std_logic;
            PD : in  std_logic;
            Q : out std_logic
        );
    end component;

    component SPR16X4C is
        generic (
            INITVAL : string := "0x0000000000000000";
            GSR : string := "ENABLED"
        );
        port (
            DI0 : in  std_logic;
            DI1 : in  std_logic;
            DI2 : in  std_logic;
            DI3 : in  std_logic;
            AD0 : in  std_logic;
            AD1 : in  std_logic;
            AD2 : in  std_logic;
            AD3 : in  std_logic;
            CK : in  std_logic;
            WRE : in  std_logic;
            DO0 : out std_logic;
            DO1 : out std_logic;
            DO2 : out std_logic;
            DO3 : out std_logic
        );
    end component;

    component DPR16X4C is
        generic (
            INITVAL : string := "0x0000000000000000";
            GSR : string := "ENABLED"
        );
        port (
            DI0 : in  std_logic;
            DI1 : in  std_logic;
            DI2 : in  std_logic;
            DI3 : in  std_logic;
            WAD0 : in  std_logic;
            WAD1 : in  std_logic;
            WAD2 : in  std_logic;
            WAD3 : in  std_logic;
            WCK : in  std_logic;
            WRE : in  std_logic;
            RAD0 : in  std_logic;
            RAD1 : in  std_logic;
            RAD2 : in  std_logic;
            RAD3 : in  std_logic;
            DO0 : out std_logic;
            DO1 : out std_logic;
            DO2 : out std_logic;
            DO3 : out std_logic
        );
    end component;

    component pmi_distributed_spram is
        generic (
            pmi_addr_depth : integer := 512;
            pmi_addr_width : integer := 9;
            pmi_data_width : integer := 8;
            pmi_regmode : string := "reg";
            pmi_init_file : string := "none";
            pmi_init_file_format : string := "binary";
            pmi_family : string := "";
            module_type : string := "pmi_distributed_spram"
        );
        port (
            Address : in  std_logic_vector(pmi_addr_width - 1 downto 0);
            Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
            Clock : in  std_logic;
            ClockEn : in  std_logic;
            WE : in  std_logic;
            Reset : in  std_logic;
            Q : out std_logic_vector(pmi_data_width - 1 downto 0)
        );
    end component;

    component pmi_distributed_dpram is
        generic (
            pmi_addr_depth : integer := 512;
            pmi_addr_width : integer := 9;
            pmi_data_width : integer := 8;
            pmi_regmode : string := "reg";
            pmi_init_file : string := "none";
            pmi_init_file_format : string := "binary";
            pmi_family : string := "";
            module_type : string := "pmi_distributed_dpram"
        );
        port (
            WrAddress : in  std_logic_vector(pmi_addr_width - 1 downto 0);
            Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
            WrClock : in  std_logic;
            WE : in  std_logic;
            WrClockEn : in  std_logic;
            RdAddress : in  std_logic_vector(pmi_addr_width - 1 downto 0);
            RdClock : in  std_logic;
            RdClockEn : in  std_logic;
            Reset : in  std_logic;
            Q : out std_logic_vector(pmi_data_width - 1 downto 0)
        );
    end component;

    component pmi_ram_dq is
        generic (
            pmi_addr_depth : integer := 512;
            pmi_addr_width : integer := 9;
            pmi_data_width : integer := 8;
            pmi_regmode : string := "reg";
            pmi_gsr : string := "disable";
            pmi_resetmode : string := "sync";
            pmi_optimization : string := "speed";
            pmi_init_file : string := "none";
            pmi_init_file_format : string := "binary";
            pmi_family : string := "";
            pmi_write_mode : string := "normal";
            module_type : string := "pmi_ram_dq"
        );
        port (
            Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
            Address : in  std_logic_vector(pmi_addr_width - 1 downto 0);
            Clock : in  std_logic;
            ClockEn : in  std_logic;
            WE : in  std_logic;
            Reset : in  std_logic;
            Q : out std_logic_vector(pmi_data_width - 1 downto 0)
        );
    end component;

    component pmi_ram_dp is
        generic (
            pmi_wr_addr_depth : integer := 512;
            pmi_wr_addr_width : integer := 9;
            pmi_wr_data_width : integer := 18;
            pmi_rd_addr_depth : integer := 512;
            pmi_rd_addr_width : integer := 9;
            pmi_rd_data_width : integer := 18;
            pmi_regmode : string := "reg";
            pmi_gsr : string := "disable";
            pmi_resetmode : string := "sync";
            pmi_optimization : string := "speed";
            pmi_init_file : string := "none";
            pmi_init_file_format : string := "binary";
            pmi_family : string := "";
            module_type : string := "pmi_ram_dp"
        );
        port (
            Data : in  std_logic_vector(pmi_wr_data_width - 1 downto 0);
            WrAddress : in  std_logic_vector(pmi_wr_addr_width - 1 downto 0);
            RdAddress : in  std_logic_vector(pmi_rd_addr_width - 1 downto 0);
            WrClock : in  std_logic;
            RdClock : in  std_logic;
            WrClockEn : in  std_logic;
            RdClockEn : in  std_logic;
            WE : in  std_logic;
            Reset : in  std_logic;
            Q : out std_logic_vector(pmi_rd_data_width - 1 downto 0)
        );
    end component;

end package components;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity LUT4 is
    generic (
        INIT : std_logic_vector(15 downto 0) := X"0000"
    );
    port (
        A : in  std_logic;
        B : in  std_logic;
        C : in  std_logic;
        D : in  std_logic;
        Z : out std_logic
    );
end entity LUT4;

architecture model of LUT4 is
begin
    Z <= bit_at(to_bitvector(INIT), D & C & B & A);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity ORCALUT4 is
    generic (
        INIT : bit_vector(15 downto 0) := X"0000"
    );
    port (
        A : in  std_logic;
        B : in  std_logic;
        C : in  std_logic;
        D : in  std_logic;
        Z : out std_logic
    );
end entity ORCALUT4;

architecture model of ORCALUT4 is
begin
    Z <= bit_at(INIT, D & C & B & A);
end architecture model;

-- The longer path of a slice: A where the select is up.
library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity PFUMX is
    port (
        ALUT : in  std_logic;
        BLUT : in  std_logic;
        C0 : in  std_logic;
        Z : out std_logic
    );
end entity PFUMX;

architecture model of PFUMX is
begin
    Z <= ALUT when C0 = '1' else BLUT;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity L6MUX21 is
    port (
        D0 : in  std_logic;
        D1 : in  std_logic;
        SD : in  std_logic;
        Z : out std_logic
    );
end entity L6MUX21;

architecture model of L6MUX21 is
begin
    Z <= D1 when SD = '1' else D0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity MUX21 is
    port (
        D0 : in  std_logic;
        D1 : in  std_logic;
        SD : in  std_logic;
        Z : out std_logic
    );
end entity MUX21;

architecture model of MUX21 is
begin
    Z <= D1 when SD = '1' else D0;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity INV is
    port (
        A : in  std_logic;
        Z : out std_logic
    );
end entity INV;

architecture model of INV is
begin
    Z <= not A;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity AND2 is
    port (
        A : in  std_logic;
        B : in  std_logic;
        Z : out std_logic
    );
end entity AND2;

architecture model of AND2 is
begin
    Z <= A and B;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity OR2 is
    port (
        A : in  std_logic;
        B : in  std_logic;
        Z : out std_logic
    );
end entity OR2;

architecture model of OR2 is
begin
    Z <= A or B;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity XOR2 is
    port (
        A : in  std_logic;
        B : in  std_logic;
        Z : out std_logic
    );
end entity XOR2;

architecture model of XOR2 is
begin
    Z <= A xor B;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity VHI is
    port (
        Z : out std_logic
    );
end entity VHI;

architecture model of VHI is
begin
    Z <= '1';
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity VLO is
    port (
        Z : out std_logic
    );
end entity VLO;

architecture model of VLO is
begin
    Z <= '0';
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3AX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3AX;

architecture model of FD1P3AX is
    signal kept : std_logic := '0';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if SP = '1' then
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3AY is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3AY;

architecture model of FD1P3AY is
    signal kept : std_logic := '1';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if SP = '1' then
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3BX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        PD : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3BX;

architecture model of FD1P3BX is
    signal kept : std_logic := '1';
begin
    process (CK, PD)
    begin
        if PD = '1' then
            kept <= '1';
        elsif rising_edge(CK) and SP = '1' then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3DX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        CD : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3DX;

architecture model of FD1P3DX is
    signal kept : std_logic := '0';
begin
    process (CK, CD)
    begin
        if CD = '1' then
            kept <= '0';
        elsif rising_edge(CK) and SP = '1' then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3IX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        CD : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3IX;

architecture model of FD1P3IX is
    signal kept : std_logic := '0';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if CD = '1' then
                kept <= '0';
            elsif SP = '1' then
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1P3JX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        SP : in  std_logic;
        CK : in  std_logic;
        PD : in  std_logic;
        Q : out std_logic
    );
end entity FD1P3JX;

architecture model of FD1P3JX is
    signal kept : std_logic := '1';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if PD = '1' then
                kept <= '1';
            elsif SP = '1' then
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3AX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3AX;

architecture model of FD1S3AX is
    signal kept : std_logic := '0';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3AY is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3AY;

architecture model of FD1S3AY is
    signal kept : std_logic := '1';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3BX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        PD : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3BX;

architecture model of FD1S3BX is
    signal kept : std_logic := '1';
begin
    process (CK, PD)
    begin
        if PD = '1' then
            kept <= '1';
        elsif rising_edge(CK) then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3DX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        CD : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3DX;

architecture model of FD1S3DX is
    signal kept : std_logic := '0';
begin
    process (CK, CD)
    begin
        if CD = '1' then
            kept <= '0';
        elsif rising_edge(CK) then
            kept <= D;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3IX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        CD : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3IX;

architecture model of FD1S3IX is
    signal kept : std_logic := '0';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if CD = '1' then
                kept <= '0';
            else
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity FD1S3JX is
    generic (
        GSR : string := "ENABLED"
    );
    port (
        D : in  std_logic;
        CK : in  std_logic;
        PD : in  std_logic;
        Q : out std_logic
    );
end entity FD1S3JX;

architecture model of FD1S3JX is
    signal kept : std_logic := '1';
begin
    process (CK)
    begin
        if rising_edge(CK) then
            if PD = '1' then
                kept <= '1';
            else
                kept <= D;
            end if;
        end if;
    end process;

    Q <= kept;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity SPR16X4C is
    generic (
        INITVAL : string := "0x0000000000000000";
        GSR : string := "ENABLED"
    );
    port (
        DI0 : in  std_logic;
        DI1 : in  std_logic;
        DI2 : in  std_logic;
        DI3 : in  std_logic;
        AD0 : in  std_logic;
        AD1 : in  std_logic;
        AD2 : in  std_logic;
        AD3 : in  std_logic;
        CK : in  std_logic;
        WRE : in  std_logic;
        DO0 : out std_logic;
        DO1 : out std_logic;
        DO2 : out std_logic;
        DO3 : out std_logic
    );
end entity SPR16X4C;

architecture model of SPR16X4C is
    signal memory : nibbles := initial(INITVAL);
    signal value  : std_logic_vector(3 downto 0);
begin
    process (CK)
    begin
        if rising_edge(CK) and WRE = '1' then
            memory(number_of(AD3 & AD2 & AD1 & AD0)) <= DI3 & DI2 & DI1 & DI0;
        end if;
    end process;

    value <= memory(number_of(AD3 & AD2 & AD1 & AD0));
    DO0 <= value(0);
    DO1 <= value(1);
    DO2 <= value(2);
    DO3 <= value(3);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity DPR16X4C is
    generic (
        INITVAL : string := "0x0000000000000000";
        GSR : string := "ENABLED"
    );
    port (
        DI0 : in  std_logic;
        DI1 : in  std_logic;
        DI2 : in  std_logic;
        DI3 : in  std_logic;
        WAD0 : in  std_logic;
        WAD1 : in  std_logic;
        WAD2 : in  std_logic;
        WAD3 : in  std_logic;
        WCK : in  std_logic;
        WRE : in  std_logic;
        RAD0 : in  std_logic;
        RAD1 : in  std_logic;
        RAD2 : in  std_logic;
        RAD3 : in  std_logic;
        DO0 : out std_logic;
        DO1 : out std_logic;
        DO2 : out std_logic;
        DO3 : out std_logic
    );
end entity DPR16X4C;

architecture model of DPR16X4C is
    signal memory : nibbles := initial(INITVAL);
    signal value  : std_logic_vector(3 downto 0);
begin
    process (WCK)
    begin
        if rising_edge(WCK) and WRE = '1' then
            memory(number_of(WAD3 & WAD2 & WAD1 & WAD0)) <= DI3 & DI2 & DI1 & DI0;
        end if;
    end process;

    value <= memory(number_of(RAD3 & RAD2 & RAD1 & RAD0));
    DO0 <= value(0);
    DO1 <= value(1);
    DO2 <= value(2);
    DO3 <= value(3);
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity pmi_distributed_spram is
    generic (
        pmi_addr_depth : integer := 512;
        pmi_addr_width : integer := 9;
        pmi_data_width : integer := 8;
        pmi_regmode : string := "reg";
        pmi_init_file : string := "none";
        pmi_init_file_format : string := "binary";
        pmi_family : string := "";
        module_type : string := "pmi_distributed_spram"
    );
    port (
        Address : in  std_logic_vector(pmi_addr_width - 1 downto 0);
        Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
        Clock : in  std_logic;
        ClockEn : in  std_logic;
        WE : in  std_logic;
        Reset : in  std_logic;
        Q : out std_logic_vector(pmi_data_width - 1 downto 0)
    );
end entity pmi_distributed_spram;

architecture model of pmi_distributed_spram is
    type cells is array (0 to pmi_addr_depth - 1) of std_logic_vector(pmi_data_width - 1 downto 0);
    signal memory : cells := (others => (others => '0'));
    signal held   : std_logic_vector(pmi_data_width - 1 downto 0) := (others => '0');
begin
    assert pmi_init_file = "none" or pmi_init_file = ""
        report "FAILED a memory with a file of initial contents: " & pmi_init_file severity failure;

    process (Clock)
    begin
        if rising_edge(Clock) and ClockEn = '1' and WE = '1' then
            memory(number_of(Address)) <= Data;
        end if;
    end process;

    process (Clock, Reset)
    begin
        if rising_edge(Clock) and ClockEn = '1' then
            if Reset = '1' then
                held <= (others => '0');
            else
                held <= memory(number_of(Address));
            end if;
        end if;
    end process;

    Q <= held when pmi_regmode = "reg" else memory(number_of(Address));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity pmi_distributed_dpram is
    generic (
        pmi_addr_depth : integer := 512;
        pmi_addr_width : integer := 9;
        pmi_data_width : integer := 8;
        pmi_regmode : string := "reg";
        pmi_init_file : string := "none";
        pmi_init_file_format : string := "binary";
        pmi_family : string := "";
        module_type : string := "pmi_distributed_dpram"
    );
    port (
        WrAddress : in  std_logic_vector(pmi_addr_width - 1 downto 0);
        Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
        WrClock : in  std_logic;
        WE : in  std_logic;
        WrClockEn : in  std_logic;
        RdAddress : in  std_logic_vector(pmi_addr_width - 1 downto 0);
        RdClock : in  std_logic;
        RdClockEn : in  std_logic;
        Reset : in  std_logic;
        Q : out std_logic_vector(pmi_data_width - 1 downto 0)
    );
end entity pmi_distributed_dpram;

architecture model of pmi_distributed_dpram is
    type cells is array (0 to pmi_addr_depth - 1) of std_logic_vector(pmi_data_width - 1 downto 0);
    signal memory : cells := (others => (others => '0'));
    signal held   : std_logic_vector(pmi_data_width - 1 downto 0) := (others => '0');
begin
    assert pmi_init_file = "none" or pmi_init_file = ""
        report "FAILED a memory with a file of initial contents: " & pmi_init_file severity failure;

    process (WrClock)
    begin
        if rising_edge(WrClock) and WrClockEn = '1' and WE = '1' then
            memory(number_of(WrAddress)) <= Data;
        end if;
    end process;

    process (RdClock, Reset)
    begin
        if rising_edge(RdClock) and RdClockEn = '1' then
            if Reset = '1' then
                held <= (others => '0');
            else
                held <= memory(number_of(RdAddress));
            end if;
        end if;
    end process;

    Q <= held when pmi_regmode = "reg" else memory(number_of(RdAddress));
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity pmi_ram_dq is
    generic (
        pmi_addr_depth : integer := 512;
        pmi_addr_width : integer := 9;
        pmi_data_width : integer := 8;
        pmi_regmode : string := "reg";
        pmi_gsr : string := "disable";
        pmi_resetmode : string := "sync";
        pmi_optimization : string := "speed";
        pmi_init_file : string := "none";
        pmi_init_file_format : string := "binary";
        pmi_family : string := "";
        pmi_write_mode : string := "normal";
        module_type : string := "pmi_ram_dq"
    );
    port (
        Data : in  std_logic_vector(pmi_data_width - 1 downto 0);
        Address : in  std_logic_vector(pmi_addr_width - 1 downto 0);
        Clock : in  std_logic;
        ClockEn : in  std_logic;
        WE : in  std_logic;
        Reset : in  std_logic;
        Q : out std_logic_vector(pmi_data_width - 1 downto 0)
    );
end entity pmi_ram_dq;

architecture model of pmi_ram_dq is
    type cells is array (0 to pmi_addr_depth - 1) of std_logic_vector(pmi_data_width - 1 downto 0);
    signal memory : cells := (others => (others => '0'));
    signal held   : std_logic_vector(pmi_data_width - 1 downto 0) := (others => '0');
    signal later  : std_logic_vector(pmi_data_width - 1 downto 0) := (others => '0');
begin
    assert pmi_init_file = "none" or pmi_init_file = ""
        report "FAILED a memory with a file of initial contents: " & pmi_init_file severity failure;

    process (Clock)
    begin
        if rising_edge(Clock) and ClockEn = '1' and WE = '1' then
            memory(number_of(Address)) <= Data;
        end if;
    end process;

    -- In normal mode a write leaves the output as it is.
    process (Clock, Reset)
    begin
        if pmi_resetmode = "async" and Reset = '1' then
            held <= (others => '0');
        elsif rising_edge(Clock) and ClockEn = '1' then
            if Reset = '1' then
                held <= (others => '0');
            else
                if pmi_write_mode = "readbeforewrite" or WE = '0' then
                    held <= memory(number_of(Address));
                elsif pmi_write_mode = "writethrough" then
                    held <= Data;
                end if;
            end if;
        end if;
    end process;

    process (Clock, Reset)
    begin
        if pmi_resetmode = "async" and Reset = '1' then
            later <= (others => '0');
        elsif rising_edge(Clock) and ClockEn = '1' then
            if Reset = '1' then
                later <= (others => '0');
            else
                later <= held;
            end if;
        end if;
    end process;

    Q <= later when pmi_regmode = "reg" else held;
end architecture model;

library ieee;
use ieee.std_logic_1164.all;
use work.prove_bits.all;

entity pmi_ram_dp is
    generic (
        pmi_wr_addr_depth : integer := 512;
        pmi_wr_addr_width : integer := 9;
        pmi_wr_data_width : integer := 18;
        pmi_rd_addr_depth : integer := 512;
        pmi_rd_addr_width : integer := 9;
        pmi_rd_data_width : integer := 18;
        pmi_regmode : string := "reg";
        pmi_gsr : string := "disable";
        pmi_resetmode : string := "sync";
        pmi_optimization : string := "speed";
        pmi_init_file : string := "none";
        pmi_init_file_format : string := "binary";
        pmi_family : string := "";
        module_type : string := "pmi_ram_dp"
    );
    port (
        Data : in  std_logic_vector(pmi_wr_data_width - 1 downto 0);
        WrAddress : in  std_logic_vector(pmi_wr_addr_width - 1 downto 0);
        RdAddress : in  std_logic_vector(pmi_rd_addr_width - 1 downto 0);
        WrClock : in  std_logic;
        RdClock : in  std_logic;
        WrClockEn : in  std_logic;
        RdClockEn : in  std_logic;
        WE : in  std_logic;
        Reset : in  std_logic;
        Q : out std_logic_vector(pmi_rd_data_width - 1 downto 0)
    );
end entity pmi_ram_dp;

architecture model of pmi_ram_dp is
    type cells is array (0 to pmi_wr_addr_depth - 1) of std_logic_vector(pmi_wr_data_width - 1 downto 0);
    signal memory : cells := (others => (others => '0'));
    signal held   : std_logic_vector(pmi_rd_data_width - 1 downto 0) := (others => '0');
    signal later  : std_logic_vector(pmi_rd_data_width - 1 downto 0) := (others => '0');
begin
    assert pmi_init_file = "none" or pmi_init_file = ""
        report "FAILED a memory with a file of initial contents: " & pmi_init_file severity failure;

    assert pmi_wr_data_width = pmi_rd_data_width
        report "FAILED pmi_ram_dp with two widths" severity failure;

    process (WrClock)
    begin
        if rising_edge(WrClock) and WrClockEn = '1' and WE = '1' then
            memory(number_of(WrAddress)) <= Data;
        end if;
    end process;

    process (RdClock, Reset)
    begin
        if pmi_resetmode = "async" and Reset = '1' then
            held <= (others => '0');
        elsif rising_edge(RdClock) and RdClockEn = '1' then
            if Reset = '1' then
                held <= (others => '0');
            else
                held <= memory(number_of(RdAddress));
            end if;
        end if;
    end process;

    process (RdClock, Reset)
    begin
        if pmi_resetmode = "async" and Reset = '1' then
            later <= (others => '0');
        elsif rising_edge(RdClock) and RdClockEn = '1' then
            if Reset = '1' then
                later <= (others => '0');
            else
                later <= held;
            end if;
        end if;
    end process;

    Q <= later when pmi_regmode = "reg" else held;
end architecture model;
