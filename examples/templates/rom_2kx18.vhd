-- Template: program memory of 2048 x 18 bits in one RAM, 16 data bits and 2 parity bits a word
--
-- nalvo_ram_2kx18 stands for a 36 kbit block RAM set to 2048 words of 16 data bits and 2 parity bits.
-- Put the primitive of your device in its place: such primitives take their first contents from generics
-- INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
--
-- All lines down to the next one are left out of the output file.
-- {BEGIN TEMPLATE}
-- {NAME}: program memory, 2048 x 18 bits in one RAM
-- Made by the assembler, do not edit.
--
-- Date:    {TIMESTAMP}
-- Project: {PROJECTTITLE}
-- Version: {PROJECTVERSION}
-- File:    {PROJECTFILENAME}

library ieee;
use ieee.std_logic_1164.all;

entity {NAME} is
    -- The top address bit is the page register, the others are the program counter.
    port (
        clk     : in  std_logic;
        address : in  std_logic_vector(10 downto 0);
        data    : out std_logic_vector(17 downto 0)
    );
end entity {NAME};

architecture rtl of {NAME} is
begin
    ram : entity work.nalvo_ram_2kx18
        generic map (
            INIT_00  => X"{INIT_00}",
            INIT_01  => X"{INIT_01}",
            INIT_02  => X"{INIT_02}",
            INIT_03  => X"{INIT_03}",
            INIT_04  => X"{INIT_04}",
            INIT_05  => X"{INIT_05}",
            INIT_06  => X"{INIT_06}",
            INIT_07  => X"{INIT_07}",
            INIT_08  => X"{INIT_08}",
            INIT_09  => X"{INIT_09}",
            INIT_0A  => X"{INIT_0A}",
            INIT_0B  => X"{INIT_0B}",
            INIT_0C  => X"{INIT_0C}",
            INIT_0D  => X"{INIT_0D}",
            INIT_0E  => X"{INIT_0E}",
            INIT_0F  => X"{INIT_0F}",
            INIT_10  => X"{INIT_10}",
            INIT_11  => X"{INIT_11}",
            INIT_12  => X"{INIT_12}",
            INIT_13  => X"{INIT_13}",
            INIT_14  => X"{INIT_14}",
            INIT_15  => X"{INIT_15}",
            INIT_16  => X"{INIT_16}",
            INIT_17  => X"{INIT_17}",
            INIT_18  => X"{INIT_18}",
            INIT_19  => X"{INIT_19}",
            INIT_1A  => X"{INIT_1A}",
            INIT_1B  => X"{INIT_1B}",
            INIT_1C  => X"{INIT_1C}",
            INIT_1D  => X"{INIT_1D}",
            INIT_1E  => X"{INIT_1E}",
            INIT_1F  => X"{INIT_1F}",
            INIT_20  => X"{INIT_20}",
            INIT_21  => X"{INIT_21}",
            INIT_22  => X"{INIT_22}",
            INIT_23  => X"{INIT_23}",
            INIT_24  => X"{INIT_24}",
            INIT_25  => X"{INIT_25}",
            INIT_26  => X"{INIT_26}",
            INIT_27  => X"{INIT_27}",
            INIT_28  => X"{INIT_28}",
            INIT_29  => X"{INIT_29}",
            INIT_2A  => X"{INIT_2A}",
            INIT_2B  => X"{INIT_2B}",
            INIT_2C  => X"{INIT_2C}",
            INIT_2D  => X"{INIT_2D}",
            INIT_2E  => X"{INIT_2E}",
            INIT_2F  => X"{INIT_2F}",
            INIT_30  => X"{INIT_30}",
            INIT_31  => X"{INIT_31}",
            INIT_32  => X"{INIT_32}",
            INIT_33  => X"{INIT_33}",
            INIT_34  => X"{INIT_34}",
            INIT_35  => X"{INIT_35}",
            INIT_36  => X"{INIT_36}",
            INIT_37  => X"{INIT_37}",
            INIT_38  => X"{INIT_38}",
            INIT_39  => X"{INIT_39}",
            INIT_3A  => X"{INIT_3A}",
            INIT_3B  => X"{INIT_3B}",
            INIT_3C  => X"{INIT_3C}",
            INIT_3D  => X"{INIT_3D}",
            INIT_3E  => X"{INIT_3E}",
            INIT_3F  => X"{INIT_3F}",
            INIT_40  => X"{INIT_40}",
            INIT_41  => X"{INIT_41}",
            INIT_42  => X"{INIT_42}",
            INIT_43  => X"{INIT_43}",
            INIT_44  => X"{INIT_44}",
            INIT_45  => X"{INIT_45}",
            INIT_46  => X"{INIT_46}",
            INIT_47  => X"{INIT_47}",
            INIT_48  => X"{INIT_48}",
            INIT_49  => X"{INIT_49}",
            INIT_4A  => X"{INIT_4A}",
            INIT_4B  => X"{INIT_4B}",
            INIT_4C  => X"{INIT_4C}",
            INIT_4D  => X"{INIT_4D}",
            INIT_4E  => X"{INIT_4E}",
            INIT_4F  => X"{INIT_4F}",
            INIT_50  => X"{INIT_50}",
            INIT_51  => X"{INIT_51}",
            INIT_52  => X"{INIT_52}",
            INIT_53  => X"{INIT_53}",
            INIT_54  => X"{INIT_54}",
            INIT_55  => X"{INIT_55}",
            INIT_56  => X"{INIT_56}",
            INIT_57  => X"{INIT_57}",
            INIT_58  => X"{INIT_58}",
            INIT_59  => X"{INIT_59}",
            INIT_5A  => X"{INIT_5A}",
            INIT_5B  => X"{INIT_5B}",
            INIT_5C  => X"{INIT_5C}",
            INIT_5D  => X"{INIT_5D}",
            INIT_5E  => X"{INIT_5E}",
            INIT_5F  => X"{INIT_5F}",
            INIT_60  => X"{INIT_60}",
            INIT_61  => X"{INIT_61}",
            INIT_62  => X"{INIT_62}",
            INIT_63  => X"{INIT_63}",
            INIT_64  => X"{INIT_64}",
            INIT_65  => X"{INIT_65}",
            INIT_66  => X"{INIT_66}",
            INIT_67  => X"{INIT_67}",
            INIT_68  => X"{INIT_68}",
            INIT_69  => X"{INIT_69}",
            INIT_6A  => X"{INIT_6A}",
            INIT_6B  => X"{INIT_6B}",
            INIT_6C  => X"{INIT_6C}",
            INIT_6D  => X"{INIT_6D}",
            INIT_6E  => X"{INIT_6E}",
            INIT_6F  => X"{INIT_6F}",
            INIT_70  => X"{INIT_70}",
            INIT_71  => X"{INIT_71}",
            INIT_72  => X"{INIT_72}",
            INIT_73  => X"{INIT_73}",
            INIT_74  => X"{INIT_74}",
            INIT_75  => X"{INIT_75}",
            INIT_76  => X"{INIT_76}",
            INIT_77  => X"{INIT_77}",
            INIT_78  => X"{INIT_78}",
            INIT_79  => X"{INIT_79}",
            INIT_7A  => X"{INIT_7A}",
            INIT_7B  => X"{INIT_7B}",
            INIT_7C  => X"{INIT_7C}",
            INIT_7D  => X"{INIT_7D}",
            INIT_7E  => X"{INIT_7E}",
            INIT_7F  => X"{INIT_7F}",
            INITP_00 => X"{INITP_00}",
            INITP_01 => X"{INITP_01}",
            INITP_02 => X"{INITP_02}",
            INITP_03 => X"{INITP_03}",
            INITP_04 => X"{INITP_04}",
            INITP_05 => X"{INITP_05}",
            INITP_06 => X"{INITP_06}",
            INITP_07 => X"{INITP_07}",
            INITP_08 => X"{INITP_08}",
            INITP_09 => X"{INITP_09}",
            INITP_0A => X"{INITP_0A}",
            INITP_0B => X"{INITP_0B}",
            INITP_0C => X"{INITP_0C}",
            INITP_0D => X"{INITP_0D}",
            INITP_0E => X"{INITP_0E}",
            INITP_0F => X"{INITP_0F}"
        )
        port map (
            clk  => clk,
            we   => '0',
            addr => address,
            din  => (others => '0'),
            dout => data
        );
end architecture rtl;
